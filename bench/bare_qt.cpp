// As little as a Qt program can do and still show a window: the yardstick for start-up and memory.
//
// With a picture: opens a window that shows it and ends when it was painted. With a second path: writes what the window
// shows there instead. Without arguments: opens a window and waits.

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace {

class PictureWindow : public QWidget {
public:
    explicit PictureWindow(const QString& Path) : Shown(Path) { resize(Shown.size()); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).drawImage(0, 0, Shown);
        QMetaObject::invokeMethod(qApp, &QApplication::quit, Qt::QueuedConnection);
    }

private:
    QImage Shown;
};

}  // namespace

int main(int Count, char** Arguments) {
    const QApplication Application(Count, Arguments);
    if (Count < 2) {
        QWidget Empty;
        Empty.resize(1280, 960);
        Empty.show();
        return QApplication::exec();
    }
    PictureWindow Window(Arguments[1]);
    Window.show();
    if (Count < 3) return QApplication::exec();
    return Window.grab().save(Arguments[2], nullptr, 85) ? 0 : 1;  // as much compressed as gloamtide-still's
}
