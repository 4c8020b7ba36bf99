// The program's timers, and what keeps them back while the user answers a dialog.
#pragma once

#include <QObject>
#include <QTimer>

#include "platform/form.h"

namespace gloamtide {

// Shut while a dialog is open. A tick that falls due then comes once, right after the gate opens.
class TickGate : public QObject {
    Q_OBJECT

public:
    // Keeps the gate shut as long as it lives.
    class Hold {
    public:
        explicit Hold(TickGate& TheGate) : Gate(TheGate) { ++Gate.Holds; }
        ~Hold() {
            if (--Gate.Holds == 0) emit Gate.Opened();
        }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

    private:
        TickGate& Gate;
    };

    bool Shut() const { return Holds > 0; }

signals:
    void Opened();

private:
    int Holds = 0;
};

// Raises the ticks of one timer.
class TimerDriver : public ElementObserver {
public:
    TimerDriver(Timer& TheRecord, TickGate& TheGate);
    ~TimerDriver() override { Record.Observer = nullptr; }
    TimerDriver(const TimerDriver&) = delete;
    TimerDriver& operator=(const TimerDriver&) = delete;

    void ElementChanged(Element&) override;

private:
    void FallDue();
    void CatchUp();

    Timer& Record;
    TickGate& Gate;
    QTimer Clock;
    bool Late = false;  // a tick fell due while the gate was shut
};

}  // namespace gloamtide
