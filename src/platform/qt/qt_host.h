// The desktop that shows the program with Qt 6 Widgets.
#pragma once

#include <QCoreApplication>
#include <QSettings>
#include <QSizeF>
#include <QWidget>
#include <map>
#include <memory>

#include "platform/host.h"
#include "platform/qt/form_window.h"
#include "platform/qt/ticks.h"

namespace gloamtide {

// A screen that the program lays out for, and the size of its board there, all in the program's pixels.
struct ProgramScreen {
    int Width = 0;
    QSizeF Board;
};

// Lives inside a QApplication and is the host in force as long as it lives. Forms must outlive it.
class QtHost : public Host {
    Q_DECLARE_TR_FUNCTIONS(QtHost)
public:
    QtHost();
    ~QtHost() override;

    std::map<std::string, QString> HelpTexts;  // in HTML, by the file names that the program asks for

    int Run();  // the event loop, until the program ends the process; returns the exit code

    // The window of a loaded form, else null.
    FormWindow* WindowOf(const Form& Which) const;

    // Of these, from the narrowest to the widest, the program sees the last whose board fits under a menu bar into a
    // window of this size, the first where none does. Without this it sees the screen as it is.
    void ChooseScreen(const std::vector<ProgramScreen>& Screens, const QSize& Window);
    static QSize LargestWindow();  // that the desktop has room for, without its title bar

    // Keeps settings, and the main window's size and place, in a file. Without this nothing is kept. What a damaged one
    // has lost, or that it cannot be written, is told when the program runs; of a damaged one a copy stays.
    void KeepSettings(const QString& FileName);

    // Before the main window is laid out: gives it its place, and the scale that it will have there.
    virtual void Prepare(FormWindow& Window);

    // Shows a window: a frameless one all over the screen, a dialog where the main window is, the main window as it was
    // left, in this run or the last, and as large as the screen the first time.
    virtual void Present(FormWindow& Window);

    double ScreenWidthTwips() override;
    double ScreenHeightTwips() override;
    DateTime SystemTime() override;
    DateTime LocalTime() override;
    std::string Translate(const char* English) override;
    void Beep() override;
    MessageAnswer ShowMessage(const MessageBox& Message) override;
    std::optional<std::string> ShowOpenDialog(const FileDialog& Dialog) override;
    std::optional<std::string> ShowSaveDialog(const FileDialog& Dialog) override;
    void ShowHelp(const std::string& FileName) override;
    GlyphMask RenderText(const Font& TheFont, const std::string& Text, double Density) override;
    Bitmap DecodePicture(std::span<const unsigned char> Bytes) override;
    void FormLoaded(Form& Which) override;
    void FormUnloaded(Form& Which) override;
    void BringToFront(Form& Which) override;
    void SetFocus(Control& Which) override;
    void ProcessPendingEvents() override;
    std::string ReadSetting(const std::string& Name) override;
    void WriteSetting(const std::string& Name, const std::string& Value) override;
    void EndProcess() override;

private:
    class FirstShow;

    void MakeWindow(Form& Which);
    QWidget* DialogParent() const;
    void TellSettingsTrouble();

    TickGate Gate;
    std::map<const Form*, FormWindow*> Windows;
    std::map<const Form*, std::unique_ptr<ElementObserver>> Awaited;  // of the forms that are loaded without a window
    FormWindow* MainWindow = nullptr;                                 // the one with menus
    std::unique_ptr<QSettings> Settings;
    QString SettingsTrouble;        // not told yet
    int ChosenWidth = 0;            // of the screen that the program sees, pixels; 0: the desktop's
    std::unique_ptr<QWidget> Help;  // once it was asked for
    bool Ended = false;
};

// A reading of the clock as the program has it.
DateTime ToDateTime(const QDateTime& Reading);

}  // namespace gloamtide
