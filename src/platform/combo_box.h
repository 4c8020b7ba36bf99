// A drop-down list.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"

namespace gloamtide {

enum class ComboStyle {
    DropDownList,   // the user picks an entry
    DropDownCombo,  // the user picks an entry or types a text
};

// Positions count from 0; ListIndex -1 means that no entry is selected.
class ComboBox : public Control {
public:
    const ComboStyle Style;
    const bool Sorted;                   // entries in the order of their texts, letter case set aside
    Property<int> ListIndex{*this, -1};  // a position beyond the list selects nothing; a new one raises Click
    Property<std::string> Text{*this};   // the selected entry, or what was typed
    int NewIndex = -1;                   // position of the entry added last
    Event Click;                         // an entry was selected
    Event DropDown;                      // the list is about to open

    ComboBox(Container& TheParent, std::string_view TheName, ComboStyle TheStyle, bool IsSorted = false);

    void AddItem(const std::string& NewText);
    void Clear();  // the text of a typed-in list stays
    int ListCount() const { return static_cast<int>(Entries.size()); }
    const std::string& List(int Position) const { return Entries.at(static_cast<std::size_t>(Position)).Text; }
    int ItemData(int Position) const { return Entries.at(static_cast<std::size_t>(Position)).Data; }
    void SetItemData(int Position, int Data) { Entries.at(static_cast<std::size_t>(Position)).Data = Data; }

    void Pick(int Position);                // the user picks an entry, perhaps the selected one again
    void Type(const std::string& NewText);  // the user types into a DropDownCombo
    void PropertyAssigned(const void* Which, bool Differs) override;

private:
    struct Entry {
        std::string Text;
        int Data = 0;
    };
    std::vector<Entry> Entries;
};

}  // namespace gloamtide
