#include "platform/combo_box.h"

#include <algorithm>
#include <cctype>

namespace gloamtide {

ComboBox::ComboBox(Container& TheParent, std::string_view TheName, ComboStyle TheStyle, bool IsSorted)
    : Control(&TheParent, TheName), Style(TheStyle), Sorted(IsSorted) {}

namespace {

bool ComesBefore(const std::string& First, const std::string& Second) {
    const auto Lower = [](char Letter) { return std::tolower(static_cast<unsigned char>(Letter)); };
    return std::lexicographical_compare(First.begin(), First.end(), Second.begin(), Second.end(),
                                        [&](char A, char B) { return Lower(A) < Lower(B); });
}

}  // namespace

void ComboBox::AddItem(const std::string& NewText) {
    auto Place = Entries.end();
    if (Sorted) {
        Place = std::upper_bound(
            Entries.begin(), Entries.end(), NewText,
            [](const std::string& Added, const Entry& There) { return ComesBefore(Added, There.Text); });
    }
    NewIndex = static_cast<int>(Place - Entries.begin());
    Entries.insert(Place, Entry{NewText, 0});
    Element::PropertyAssigned(&Entries, true);
}

void ComboBox::Clear() {
    Entries.clear();
    NewIndex = -1;
    ListIndex = -1;
    if (Style == ComboStyle::DropDownList) Text = "";
    Element::PropertyAssigned(&Entries, true);
}

void ComboBox::Pick(int Position) {
    if (Position == ListIndex && Position >= 0) {
        Text = List(Position);
        Click();
    } else {
        ListIndex = Position;
    }
}

void ComboBox::Type(const std::string& NewText) {
    Text = NewText;  // first: a view must not show the picked entry again in between
    ListIndex = -1;
}

void ComboBox::PropertyAssigned(const void* Which, bool Differs) {
    if (Which == &ListIndex && ListIndex != -1) {
        if (ListIndex < 0 || ListIndex >= ListCount()) {
            ListIndex = -1;
            return;
        }
        if (Differs) Text = List(ListIndex);
    }
    Control::PropertyAssigned(Which, Differs);
    if (Which == &ListIndex && Differs && ListIndex >= 0) Click();
}

}  // namespace gloamtide
