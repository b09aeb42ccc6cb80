#include "toolkit/event.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace tavo {
namespace {

TEST(Event, The_programs_handler_runs_before_all_listeners)
{
    Event<int> event;
    std::string log;
    const auto first = event.Listen([&](int value) { log += "a" + std::to_string(value); });
    const auto second = event.Listen([&](int value) { log += "b" + std::to_string(value); });
    event = [&](int value) { log += "own" + std::to_string(value); };
    event(7);
    EXPECT_EQ(log, "own7a7b7");
}

TEST(Event, A_listener_ends_with_its_connection_even_while_the_event_runs)
{
    Event<> event;
    int calls = 0;
    std::optional<Connection> second;
    const auto first = event.Listen([&] { second.reset(); });
    second = event.Listen([&] { ++calls; });
    event();
    EXPECT_EQ(calls, 0);
    event();
    EXPECT_EQ(calls, 0);
}

TEST(Event, A_connection_may_outlive_its_event)
{
    Connection left;
    {
        Event<> event;
        left = event.Listen([] {});
    }
    left.End();
    Event<> other;
    int calls = 0;
    left = other.Listen([&] { ++calls; });
    other();
    EXPECT_EQ(calls, 1);
}

TEST(Event, A_listener_that_comes_while_it_runs_is_called_from_the_next_time_on)
{
    Event<> event;
    int calls = 0;
    std::optional<Connection> late;
    const auto first = event.Listen([&] {
        if (!late)
            late = event.Listen([&] { ++calls; });
    });
    event();
    EXPECT_EQ(calls, 0);
    event();
    EXPECT_EQ(calls, 1);
}

TEST(Event, A_handler_may_replace_itself_and_raise_again)
{
    Event<> event;
    std::string log;
    event = [&] {
        event = [&] { log += "new"; };
        event();
        log += "old";
    };
    event();
    EXPECT_EQ(log, "newold");
}

TEST(Event, A_handler_changes_an_argument_for_those_behind_it)
{
    Event<int&> event;
    event = [](int& key) { key = 0; };
    int seen = -1;
    const auto listener = event.Listen([&](int& key) { seen = key; });
    int key = 65;
    event(key);
    EXPECT_EQ(key, 0);
    EXPECT_EQ(seen, 0);
}

TEST(Event, An_empty_handler_is_none)
{
    Event<> event;
    EXPECT_FALSE(event.HasHandler());
    event = [] {};
    EXPECT_TRUE(event.HasHandler());
    event = nullptr;
    EXPECT_FALSE(event.HasHandler());
    event();
}

} // namespace
} // namespace tavo
