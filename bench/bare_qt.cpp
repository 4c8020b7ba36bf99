// As little as a Qt program can do and still show a window: the yardstick for start-up and memory.
//
// With a path: opens an offscreen window as large as that of gloamtide-still and writes a picture of it. Without one:
// opens it and waits, as gloamtide does.

#include <QApplication>
#include <QMainWindow>
#include <QPixmap>

int main(int Count, char** Arguments) {
    const QApplication Application(Count, Arguments);
    QMainWindow Window;
    Window.resize(1280, 960);
    Window.show();
    if (Count < 2) return QApplication::exec();
    return Window.grab().save(Arguments[1], "PNG") ? 0 : 1;
}
