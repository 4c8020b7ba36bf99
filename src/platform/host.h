// What the program asks of the desktop that it runs on.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/date_time.h"
#include "platform/form.h"

namespace gloamtide {

enum class MessageIcon { None, Exclamation, Question };
enum class MessageButtons { OK, YesNo };
enum class MessageAnswer { OK, Yes, No };

struct MessageBox {
    std::string Title;
    std::string Text;
    MessageIcon Icon = MessageIcon::None;
    MessageButtons Buttons = MessageButtons::OK;
};

// An Open or Save dialog. Filter: descriptions and patterns in turn, parted by "|"; the first pair is selected.
// The Open dialog takes files that exist; the Save dialog takes folders that exist and asks before overwriting.
struct FileDialog {
    std::string Filter;
    std::string FileName;  // offered, may be empty
};

// How strongly a text covers each pixel of its box, 0 to 255, row by row from the top left.
struct GlyphMask {
    int Width = 0;   // pixels
    int Height = 0;  // pixels
    std::vector<std::uint8_t> Coverage;
};

class Host {
public:
    Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    virtual ~Host() = default;

    virtual double ScreenWidthTwips() = 0;
    virtual double ScreenHeightTwips() = 0;
    virtual DateTime SystemTime() = 0;                                      // Greenwich
    virtual DateTime LocalTime() = 0;                                       // the computer's own
    virtual std::string Translate(const char* English) { return English; }  // into the user's language

    virtual void Beep() = 0;
    // Returns when the user has answered. While it or a file dialog is open no timer of the program ticks and no
    // other window takes input.
    virtual MessageAnswer ShowMessage(const MessageBox& Message) = 0;
    virtual std::optional<std::string> ShowOpenDialog(const FileDialog& Dialog) = 0;  // the path; none on Cancel
    virtual std::optional<std::string> ShowSaveDialog(const FileDialog& Dialog) = 0;
    virtual void ShowHelp(const std::string& FileName) = 0;  // does nothing where there is no help
    // In device pixels; Density: device pixels for each of the program's.
    virtual GlyphMask RenderText(const Font& TheFont, const std::string& Text, double Density) = 0;
    // A picture in a compressed format, PNG or WebP; empty where the host cannot decode it.
    virtual Bitmap DecodePicture(std::span<const unsigned char> Bytes) = 0;

    virtual void FormLoaded(Form& Which) = 0;    // before its load event; from here on the host watches it
    virtual void FormUnloaded(Form& Which) = 0;  // after its unload event
    virtual void BringToFront(Form& Which) = 0;  // a window that is shown already
    virtual void SetFocus(Control& Which) = 0;
    virtual void ProcessPendingEvents() = 0;  // once, so that what was shown is painted
    // The program's own settings, kept between runs; an empty text where there is none of the name.
    virtual std::string ReadSetting(const std::string& Name) = 0;
    virtual void WriteSetting(const std::string& Name, const std::string& Value) = 0;
    virtual void EndProcess() = 0;  // asks the event loop to end
};

// The host in force, set before the program starts.
inline Host* host = nullptr;

}  // namespace gloamtide
