// A desktop with a screen and a clock as asked for, whose messages go to standard error.
#pragma once

#include "app/still_options.h"
#include "platform/qt/qt_host.h"

namespace gloamtide {

constexpr const char* StillProgram = "gloamtide-still";

class StillHost : public QtHost {
public:
    explicit StillHost(const StillOptions& TheAsked);

    DateTime Clock;  // Greenwich

    double ScreenWidthTwips() override;
    double ScreenHeightTwips() override { return WindowSize().height() * TwipsPerPixel; }
    DateTime SystemTime() override { return Clock; }
    DateTime LocalTime() override { return Clock; }
    void Beep() override {}
    MessageAnswer ShowMessage(const MessageBox& Message) override;
    void FormLoaded(Form& Which) override;
    void FormUnloaded(Form& Which) override;
    void Prepare(FormWindow& Window) override;
    void Present(FormWindow& Window) override;

private:
    QSize WindowSize() const;

    const StillOptions& Asked;
};

}  // namespace gloamtide
