#pragma once

#include "toolkit/control.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <initializer_list>
#include <vector>

namespace tavo {

// Which properties of a control have changed since its widget last took them.
class PropSet {
public:
    void Add(Prop what) { bits_ |= Bit(what); }
    void AddAll() { bits_ = ~0u; }
    void Clear() { bits_ = 0; }
    bool Empty() const { return bits_ == 0; }
    bool Has(std::initializer_list<Prop> any) const
    {
        for (const Prop what : any)
            if (bits_ & Bit(what))
                return true;
        return false;
    }

private:
    static unsigned Bit(Prop what) { return 1u << static_cast<unsigned>(what); }
    unsigned bits_ = 0;
};

class Binding;

// Brings widgets in line with what they stand for, at most once a frame
// however often that changes. A change costs a bit and, for the first one in a
// frame, a place in the queue.
class FrameQueue {
public:
    FrameQueue();

    void Add(Binding& binding);
    // Everything that waits, now. For a host that is about to hand on input.
    void Flush();
    // Runs behind each flush that did something.
    std::function<void()> AfterFlush;

private:
    QTimer timer_;
    std::vector<QPointer<Binding>> waiting_;
};

// Ties a widget to its control (or window to its form) until either ends. The
// widget owns it.
class Binding : public QObject {
    Q_OBJECT

public:
    using Apply = std::function<void(const PropSet& changed)>;

    // Applies everything at once.
    Binding(FrameQueue& queue, QObject& widget, Event<Prop>& changes, Apply apply);

    void Mark(Prop what);
    void ApplyNow();

private:
    FrameQueue& queue_;
    Apply apply_;
    PropSet changed_;
    Connection connection_;
};

} // namespace tavo
