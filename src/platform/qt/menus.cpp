#include "platform/qt/menus.h"

#include <QAction>
#include <QMenu>

namespace gloamtide {
namespace {

class MenuWatcher : public ElementObserver {
public:
    MenuWatcher(Menu& TheRecord, QAction& TheAction) : Record(TheRecord), Action(TheAction) {
        Action.setObjectName(QString::fromStdString(Record.Name));
        Action.setMenuRole(QAction::NoRole);
        Action.setShortcut(QKeySequence(QString::fromStdString(Record.Shortcut)));
        QObject::connect(&Action, &QAction::triggered, &Action, [this, &Item = Record] {
            Show();  // the check mark is the program's to set
            Item.Click();
        });
        Record.Observer = this;
        Show();
    }
    ~MenuWatcher() override { Record.Observer = nullptr; }
    MenuWatcher(const MenuWatcher&) = delete;
    MenuWatcher& operator=(const MenuWatcher&) = delete;

    void ElementChanged(Element&) override { Show(); }

private:
    void Show() {
        Action.setText(QString::fromStdString(Record.Caption));
        Action.setCheckable(Record.Checked);
        Action.setChecked(Record.Checked);
    }

    Menu& Record;
    QAction& Action;
};

// Parent: a menu bar or a menu.
template <class Holder>
void MakeItems(const std::vector<Menu*>& Records, Holder& Parent, Watchers& Watching) {
    for (Menu* Record : Records) {
        QAction* Action = nullptr;
        if (Record->Separator) {
            Action = Parent.addSeparator();
        } else if (Record->Items.empty()) {
            Action = Parent.addAction(QString());
        } else {
            QMenu* List = Parent.addMenu(QString());
            List->setAccessibleName(QString::fromStdString(Record->Caption).remove('&'));
            MakeItems(Record->Items, *List, Watching);
            Action = List->menuAction();
        }
        Watching.All.push_back(std::make_unique<MenuWatcher>(*Record, *Action));
    }
}

}  // namespace

void MakeMenus(const Form& Record, QMenuBar& Bar, Watchers& Watching) { MakeItems(Record.Menus, Bar, Watching); }

}  // namespace gloamtide
