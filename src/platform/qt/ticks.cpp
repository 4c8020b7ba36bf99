#include "platform/qt/ticks.h"

namespace gloamtide {

TimerDriver::TimerDriver(Timer& TheRecord, TickGate& TheGate) : Record(TheRecord), Gate(TheGate) {
    Clock.setObjectName(QString::fromStdString(Record.Name));
    Clock.setTimerType(Qt::PreciseTimer);
    QObject::connect(&Clock, &QTimer::timeout, &Clock, [this] { FallDue(); });
    // Queued: the handler that opened the dialog runs to its end first.
    QObject::connect(
        &Gate, &TickGate::Opened, &Clock, [this] { CatchUp(); }, Qt::QueuedConnection);
    Record.Observer = this;
    TimerDriver::ElementChanged(Record);
}

void TimerDriver::ElementChanged(Element&) {
    const bool Runs = Record.Enabled && Record.Interval > 0;
    if (!Runs) {
        Clock.stop();
        Late = false;
    } else if (!Clock.isActive() || Clock.interval() != Record.Interval) {
        Clock.start(Record.Interval);
    }
}

void TimerDriver::FallDue() {
    Late = Gate.Shut();
    if (!Late) Record.Tick();
}

void TimerDriver::CatchUp() {
    if (Late) FallDue();
}

}  // namespace gloamtide
