// Keeps a widget in line with its record.
#pragma once

#include <QPalette>
#include <QWidget>
#include <functional>

#include "platform/control.h"
#include "platform/qt/board.h"

namespace gloamtide {

QColor ToQColor(Color Value);

// Gives the widget a colour in one of its palette's roles; costs nothing where it has that colour already.
void SetRole(QWidget& Widget, QPalette::ColorRole Role, Color Value);

// What all kinds of controls share: name, place, size, font, tool tip, visibility.
//
// A size of 0 in the record asks for the natural one. The watcher writes that back into the record, so that the
// program's layout can read it, and keeps it in step with the contents until the program gives a size of its own.
class ControlWatcher : public ElementObserver {
public:
    // ShowKind brings over what only controls of this kind have.
    ControlWatcher(Control& TheRecord, QWidget& TheWidget, const BoardScale& TheScale,
                   std::function<void()> TheShowKind);
    ~ControlWatcher() override;
    ControlWatcher(const ControlWatcher&) = delete;
    ControlWatcher& operator=(const ControlWatcher&) = delete;

    void ElementChanged(Element&) override;

private:
    void SetFont(double Factor, int Lowest);
    void SetScaledFont();
    void ShowFont();
    void TakeNaturalSize();
    void Place();
    QRect RoomForLetters(QRect Box, const QRect& Inner);

    Control& Record;
    QWidget& Widget;
    const BoardScale& Scale;
    std::function<void()> ShowKind;
    Font ShownFont;
    QMetaObject::Connection Following;
    QSize Natural;         // last written into the record
    bool Writing = false;  // the record changes by the watcher's own hand
};

}  // namespace gloamtide
