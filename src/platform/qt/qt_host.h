// The desktop that shows the program with Qt 6 Widgets.
#pragma once

#include <QWidget>
#include <map>
#include <memory>

#include "platform/host.h"
#include "platform/qt/form_window.h"
#include "platform/qt/ticks.h"

namespace gloamtide {

// Lives inside a QApplication and is the host in force as long as it lives. Forms must outlive it.
class QtHost : public Host {
public:
    QtHost();
    ~QtHost() override;

    std::map<std::string, QString> HelpTexts;  // in HTML, by the file names that the program asks for

    int Run() const;  // the event loop, until the program ends the process; returns the exit code

    // The window of a loaded form, else null.
    QWidget* WindowOf(const Form& Which) const;

    // Shows a window all over the screen, a frameless one over panels and docks too.
    virtual void FillScreen(QWidget& Window);

    double ScreenWidthTwips() override;
    double ScreenHeightTwips() override;
    DateTime SystemTime() override;
    DateTime LocalTime() override;
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
    void EndProcess() override;

private:
    QWidget* DialogParent() const;

    TickGate Gate;
    std::map<const Form*, FormWindow*> Windows;
    std::unique_ptr<QWidget> Help;  // once it was asked for
    bool Ended = false;
};

// A reading of the clock as the program has it.
DateTime ToDateTime(const QDateTime& Reading);

}  // namespace gloamtide
