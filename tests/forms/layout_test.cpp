#include "forms/layout.h"

#include "platform/combo_box.h"
#include "platform/controls.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

std::string TextOf(const Control& Record) {
    if (const auto* Each = dynamic_cast<const Label*>(&Record)) return Each->Caption;
    if (const auto* Each = dynamic_cast<const Frame*>(&Record)) return Each->Caption;
    if (const auto* Each = dynamic_cast<const TextBox*>(&Record)) return Each->Text;
    if (const auto* Each = dynamic_cast<const OptionButton*>(&Record)) {
        return Each->Caption.Get() + (Each->Value ? " (chosen)" : "");
    }
    if (const auto* Each = dynamic_cast<const CheckBox*>(&Record)) return Each->Caption;
    if (const auto* Each = dynamic_cast<const PictureBox*>(&Record)) return Each->Description;
    if (const auto* Each = dynamic_cast<const CommandButton*>(&Record)) {
        return Each->Caption.Get() + (Each->Default ? " (Enter)" : "") + (Each->Cancel ? " (Escape)" : "");
    }
    const auto& List = dynamic_cast<const ComboBox&>(Record);
    std::string Text;
    for (int Position = 0; Position < std::min(List.ListCount(), 31); ++Position) Text += List.List(Position) + ";";
    return Text + " of " + std::to_string(List.ListCount());
}

void Describe(std::ostream& Out, const Control& Record, const std::string& Indent, bool Deep) {
    Out << Indent << Record.Name << " at " << Record.Left.Pixels() << ", " << Record.Top.Pixels() << ", "
        << Record.Width.Pixels() << " x " << Record.Height.Pixels() << (Record.Visible ? "" : ", hidden") << ", "
        << Record.FontName.Get() << ' ' << Record.FontSize << (Record.FontBold ? " bold" : "")
        << (Record.FontItalic ? " italic" : "") << ", " << std::hex << Record.ForeColor << " on " << Record.BackColor
        << std::dec << ": " << TextOf(Record);
    if (!Record.ToolTipText.Get().empty()) Out << " [" << Record.ToolTipText.Get() << "]";
    Out << "\n";
    const auto* Holder = dynamic_cast<const Container*>(&Record);
    if (Holder == nullptr || !Deep) return;
    for (const Control* Each : Holder->Children) Describe(Out, *Each, Indent + "  ", Deep);
}

void Describe(std::ostream& Out, const Menu& Record, const std::string& Indent) {
    Out << Indent << (Record.Separator ? "---" : Record.Caption.Get()) << (Record.Checked ? " (checked)" : "") << "\n";
    for (const Menu* Each : Record.Items) Describe(Out, *Each, Indent + "  ");
}

using Layout = ProgramTest;

// Every window, menu and control, with what a user reads on it, and its place in pixels.
TEST_F(Layout, WindowsAndWhatTheySay) {
    std::ostringstream Out;
    for (const int Width : {640, 800, 1024, 1280, 1920}) {
        Desktop.ScreenWidth = Width;
        RenewProgram();
        Start();
        Out << "Screen of " << Width << " pixels\n";
        for (Form* Each : std::initializer_list<Form*>{&FormSplash, &FormGTMain, &FormConfigure, &FormAnimation,
                                                       &FormSundialOptions, &FormAbout}) {
            Each->Load();
            Out << "\n" << Each->Name << ": " << Each->Caption.Get() << "\n";
            for (const Menu* Item : Each->Menus) Describe(Out, *Item, "  ");
            for (const Timer* Ticking : Each->Timers) {
                Out << "  " << Ticking->Name << ": " << Ticking->Interval << (Ticking->Enabled ? ", runs" : "") << "\n";
            }
            for (const Control* Child : Each->Children) Describe(Out, *Child, "  ", Width >= 1280);
        }
        Out << "\n";
    }
    ExpectGoldenText("windows.txt", Out.str());
}

}  // namespace
}  // namespace gloamtide
