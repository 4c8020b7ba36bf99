#include "platform/qt/menus.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

#include "platform/translation.h"

namespace gloamtide {
namespace {

QString Translated(const std::string& Caption) { return QString::fromStdString(Tr(Caption.c_str())); }

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
        Action.setText(Translated(Record.Caption));
        Action.setCheckable(Record.Checked);
        Action.setChecked(Record.Checked);
    }

    Menu& Record;
    QAction& Action;
};

// No higher than a line of text, so that the bar stays as high as its menus make it.
class CornerButton : public QToolButton {
public:
    explicit CornerButton(QMenuBar& Bar) : QToolButton(&Bar) { setFocusPolicy(Qt::NoFocus); }

    QSize sizeHint() const override { return {QToolButton::sizeHint().width(), fontMetrics().height()}; }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

class ButtonWatcher : public ElementObserver {
public:
    ButtonWatcher(BarButton& TheRecord, QToolButton& TheButton) : Record(TheRecord), Button(TheButton) {
        Button.setObjectName(QString::fromStdString(Record.Name));
        QObject::connect(&Button, &QToolButton::clicked, &Button, [&Pressed = Record] { Pressed.Click(); });
        Record.Observer = this;
        ButtonWatcher::ElementChanged(Record);
    }
    ~ButtonWatcher() override { Record.Observer = nullptr; }
    ButtonWatcher(const ButtonWatcher&) = delete;
    ButtonWatcher& operator=(const ButtonWatcher&) = delete;

    void ElementChanged(Element&) override {
        Button.setText(Translated(Record.Caption));
        Button.setToolTip(QString::fromStdString(Record.ToolTipText));
        Button.setVisible(Record.Visible);
    }

private:
    BarButton& Record;
    QToolButton& Button;
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
            List->setAccessibleName(Translated(Record->Caption).remove('&'));
            MakeItems(Record->Items, *List, Watching);
            Action = List->menuAction();
        }
        Watching.All.push_back(std::make_unique<MenuWatcher>(*Record, *Action));
    }
}

}  // namespace

void MakeMenus(const Form& Record, QMenuBar& Bar, Watchers& Watching) {
    MakeItems(Record.Menus, Bar, Watching);
    if (Record.ButtonOfBar == nullptr) return;
    auto* Button = new CornerButton(Bar);
    Bar.setCornerWidget(Button);
    Watching.All.push_back(std::make_unique<ButtonWatcher>(*Record.ButtonOfBar, *Button));
}

}  // namespace gloamtide
