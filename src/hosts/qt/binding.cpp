#include "hosts/qt/binding.h"

#include <utility>

namespace tavo {

namespace {

constexpr int frameMs = 16;

} // namespace

FrameQueue::FrameQueue()
{
    timer_.setSingleShot(true);
    timer_.setInterval(frameMs);
    QObject::connect(&timer_, &QTimer::timeout, [this] { Flush(); });
}

void FrameQueue::Add(Binding& binding)
{
    waiting_.emplace_back(&binding);
    if (!timer_.isActive())
        timer_.start();
}

void FrameQueue::Flush()
{
    if (waiting_.empty())
        return;
    // A widget may tell its control something, which marks others.
    const auto now = std::exchange(waiting_, {});
    for (const auto& binding : now)
        if (binding)
            binding->ApplyNow();
    if (AfterFlush)
        AfterFlush();
}

Binding::Binding(FrameQueue& queue, QObject& widget, Event<Prop>& changes, Apply apply)
    : QObject(&widget), queue_(queue), apply_(std::move(apply)),
      connection_(changes.Listen([this](Prop what) { Mark(what); }))
{
    changed_.AddAll();
    ApplyNow();
}

void Binding::Mark(Prop what)
{
    const bool waits = !changed_.Empty();
    changed_.Add(what);
    if (!waits)
        queue_.Add(*this);
}

void Binding::ApplyNow()
{
    const PropSet changed = std::exchange(changed_, PropSet());
    if (!changed.Empty())
        apply_(changed);
}

} // namespace tavo
