// Starts as the desktop program does and ends when the map was painted for the first time.

#include <QApplication>

#include "app/screens.h"
#include "frame/startup.h"
#include "platform/qt/picture_view.h"
#include "platform/qt/qt_host.h"
#include "state/state.h"

namespace {

using namespace gloamtide;

class FirstPainting : public QObject {
public:
    bool eventFilter(QObject* Watched, QEvent* Event) override {
        Seen = Seen || (Watched->objectName() == "PictureGT" && Event->type() == QEvent::Paint);
        return false;
    }

    bool Seen = false;
};

}  // namespace

int main(int Count, char** Arguments) {
    QApplication Application(Count, Arguments);
    FirstPainting First;
    Application.installEventFilter(&First);
    QtHost Desktop;
    state.StartupSource = ConfigurationSource::Defaults;
    Desktop.ChooseScreen(ProgramScreens(), QtHost::LargestWindow());
    StartProgram();
    while (!First.Seen) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return 0;
}
