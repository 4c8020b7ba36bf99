// A host without a desktop: answers that a test scripts, a record of what the program did, a clock that a test moves.
#pragma once

#include <deque>
#include <map>

#include "platform/host.h"

namespace gloamtide {

class HeadlessHost : public Host {
public:
    HeadlessHost() { host = this; }
    ~HeadlessHost() override { host = nullptr; }

    // --- set by a test
    int ScreenWidth = 1280;   // pixels
    int ScreenHeight = 1024;  // pixels
    DateTime System = {2026, 6, 1, 1, 12, 0, 0, 0};
    DateTime Local = {2026, 6, 1, 1, 7, 0, 0, 0};
    std::deque<MessageAnswer> Answers;                 // to message boxes, in turn; without one: OK or No
    std::deque<std::optional<std::string>> FileNames;  // given in file dialogs, in turn; without one: Cancel

    std::map<std::string, std::string> Settings;  // and what the program wrote

    // --- recorded
    struct ShownMessage {
        MessageBox Box;
        int BeepsBefore = 0;  // since the last message
    };
    std::vector<ShownMessage> Messages;
    std::vector<FileDialog> OpenDialogs;
    std::vector<FileDialog> SaveDialogs;
    std::vector<std::string> HelpFiles;
    int Beeps = 0;
    Control* Focus = nullptr;
    Form* InFront = nullptr;  // shown again last
    bool Ended = false;

    // Lets a whole number of milliseconds pass, from the system clock's reading on: moves both clocks and raises the
    // ticks of the enabled timers of all loaded forms, in the order of their times.
    void Advance(int Milliseconds);

    double ScreenWidthTwips() override { return ScreenWidth * TwipsPerPixel; }
    double ScreenHeightTwips() override { return ScreenHeight * TwipsPerPixel; }
    DateTime SystemTime() override { return System; }
    DateTime LocalTime() override { return Local; }
    void Beep() override { ++Beeps; }
    MessageAnswer ShowMessage(const MessageBox& Message) override;
    std::optional<std::string> ShowOpenDialog(const FileDialog& Dialog) override;
    std::optional<std::string> ShowSaveDialog(const FileDialog& Dialog) override;
    void ShowHelp(const std::string& FileName) override { HelpFiles.push_back(FileName); }
    GlyphMask RenderText(const Font& TheFont, const std::string& Text, double Density) override;
    Bitmap DecodePicture(std::span<const unsigned char>) override { return {}; }
    void FormLoaded(Form&) override {}
    void FormUnloaded(Form&) override {}
    void BringToFront(Form& Which) override { InFront = &Which; }
    void SetFocus(Control& Which) override { Focus = &Which; }
    void ProcessPendingEvents() override {}
    std::string ReadSetting(const std::string& Name) override { return Settings[Name]; }
    void WriteSetting(const std::string& Name, const std::string& Value) override { Settings[Name] = Value; }
    void EndProcess() override { Ended = true; }

private:
    std::optional<std::string> NextFileName();

    std::map<const Timer*, int> Waited;  // milliseconds since each running timer's last tick
    int BeepsAtLastMessage = 0;
};

}  // namespace gloamtide
