#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tavo {

namespace detail {
struct SlotBase {
    bool Live = true;
};
} // namespace detail

// Owns one listener of an event. The listener ends with it, or with the event,
// whichever goes first.
class Connection {
public:
    Connection() = default;
    explicit Connection(std::shared_ptr<detail::SlotBase> slot) : slot_(std::move(slot)) {}
    Connection(Connection&& other) noexcept = default;
    Connection& operator=(Connection&& other) noexcept
    {
        if (this != &other) {
            End();
            slot_ = std::move(other.slot_);
        }
        return *this;
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { End(); }

    void End()
    {
        if (slot_)
            slot_->Live = false;
        slot_.reset();
    }

private:
    std::shared_ptr<detail::SlotBase> slot_;
};

// Something that happens to a control. The program's own handler is assigned;
// others listen beside it. Handlers run at once, in the order of their coming,
// the program's first; they may add or end listeners, and raise again.
template <class... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    Event& operator=(Handler handler)
    {
        own_ = handler ? std::make_shared<Handler>(std::move(handler)) : nullptr;
        return *this;
    }

    [[nodiscard]] Connection Listen(Handler handler)
    {
        auto slot = std::make_shared<Slot>();
        slot->Call = std::move(handler);
        slots_.push_back(slot);
        return Connection(slot);
    }

    bool HasHandler() const { return own_ != nullptr || !slots_.empty(); }

    void operator()(Args... args) const
    {
        if (const auto own = own_)
            (*own)(args...);
        if (!slots_.empty())
            CallListeners(args...);
    }

private:
    struct Slot : detail::SlotBase {
        Handler Call;
    };

    void CallListeners(Args... args) const
    {
        const auto now = slots_; // a listener may change the list
        bool ended = false;
        for (const auto& slot : now) {
            if (slot->Live)
                slot->Call(args...);
            ended = ended || !slot->Live;
        }
        if (ended)
            std::erase_if(slots_, [](const auto& slot) { return !slot->Live; });
    }

    std::shared_ptr<Handler> own_;
    mutable std::vector<std::shared_ptr<Slot>> slots_;
};

} // namespace tavo
