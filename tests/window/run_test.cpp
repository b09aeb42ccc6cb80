#include "window/person.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace tavo {

using Strings = std::vector<std::string>;

namespace {

// So many that a run takes several turns of the pump.
constexpr int manyFiles = 5000;

Strings ManyNames()
{
    Strings names;
    for (int i = 0; i < manyFiles; ++i)
        names.push_back("f" + std::to_string(i));
    return names;
}

int Renamed(const Strings& names)
{
    return static_cast<int>(
        std::count_if(names.begin(), names.end(), [](const auto& name) { return name[0] == 'x'; }));
}

// Does this once, in the first turn of the pump in which it is wanted.
void OnceWhen(QObject& owner, std::function<bool()> wanted, std::function<void()> step)
{
    auto* watch = new QTimer(&owner);
    QObject::connect(watch, &QTimer::timeout, &owner, [=] {
        if (!wanted())
            return;
        watch->stop();
        watch->deleteLater();
        step();
    });
    watch->start(0);
}

// A person on the rename list, who is about to run all files.
class Runner : public Person {
public:
    explicit Runner(std::string_view test) : Person(test, ManyNames())
    {
        RenameAllFiles();
        auto& name = Of<QLineEdit>("txtNameNum(0)");
        Type(name, "x");
        Main().txtNameNum[nnName].Text = "x<#>";
        AnswerNext("OK");
    }
    bool RunIsUp()
    {
        Window().Bound().Queue().Flush();
        auto& pause = Of<QPushButton>("cmdActPause");
        return pause.isVisible() && pause.isEnabled();
    }
    std::string Stage() { return Main().lblActionInfo[0].Caption; }
};

} // namespace

TEST(WindowRun, Pause_holds_the_run_and_Continue_lets_it_go_on)
{
    Runner p("window_pause");
    auto& pause = p.Of<QPushButton>("cmdActPause");
    int atPause = -1, later = -1, turns = 0;
    std::string stage;
    OnceWhen(
        p.Window(), [&] { return p.RunIsUp(); }, [&] { p.Click(pause); });
    OnceWhen(
        p.Window(), [&] { return p.Running().state.ActPaused; },
        [&] { atPause = Renamed(p.Files()); });
    OnceWhen(
        p.Window(), [&] { return atPause >= 0 && ++turns > 5; },
        [&] {
            p.Window().Bound().Queue().Flush();
            later = Renamed(p.Files());
            stage = p.Of<QLabel>("lblActionInfo(0)").text().toStdString();
            EXPECT_EQ(pause.text(), "Continue");
            p.Click(pause);
        });
    p.Press("ID_RenAll");
    EXPECT_EQ(later, atPause);
    EXPECT_LT(later, manyFiles);
    EXPECT_EQ(stage, "Paused... Press Continue to Restart");
    EXPECT_EQ(p.Stage(), "Finished! Click Done to Continue...");
    EXPECT_EQ(Renamed(p.Files()), manyFiles);
}

TEST(WindowRun, Cancel_ends_a_pause_and_the_run)
{
    Runner p("window_cancel_pause");
    OnceWhen(
        p.Window(), [&] { return p.RunIsUp(); },
        [&] { p.Click(p.Of<QPushButton>("cmdActPause")); });
    OnceWhen(
        p.Window(), [&] { return p.Running().state.ActPaused; },
        [&] { p.Click(p.Of<QPushButton>("cmdActCancel")); });
    p.Press("ID_RenAll");
    EXPECT_EQ(p.Stage(), "Finished! Click Done to Continue...");
    EXPECT_FALSE(p.Running().state.ActPaused);
    EXPECT_LT(Renamed(p.Files()), manyFiles);
}

TEST(WindowRun, Escape_stops_the_run)
{
    Runner p("window_escape");
    OnceWhen(
        p.Window(), [&] { return p.RunIsUp(); }, [&] { p.Key(Qt::Key_Escape); });
    p.Press("ID_RenAll");
    EXPECT_TRUE(p.Running().state.ActCancel);
    EXPECT_EQ(p.Stage(), "Finished! Click Done to Continue...");
    EXPECT_LT(Renamed(p.Files()), manyFiles);
}

TEST(WindowRun, A_window_closed_in_the_midst_of_a_run_goes_when_the_run_has_ended)
{
    Runner p("window_close_run");
    bool refused = false, ended = false;
    OnceWhen(
        p.Window(), [&] { return p.RunIsUp(); },
        [&] {
            p.Window().close();
            refused = p.Window().isVisible() && p.Main().Loaded();
        });
    QEventLoop loop;
    const Connection gone = p.Main().Unloaded.Listen([&] {
        ended = true;
        loop.quit();
    });
    p.Press("ID_RenAll");
    EXPECT_TRUE(refused);
    EXPECT_FALSE(ended);
    loop.exec();
    EXPECT_TRUE(ended);
    EXPECT_FALSE(p.Window().isVisible());
    EXPECT_LT(Renamed(p.Files()), manyFiles);
}

TEST(WindowRun, A_window_closed_at_rest_goes_at_once)
{
    Person p("window_close", {"a.txt"});
    p.Window().close();
    EXPECT_FALSE(p.Main().Loaded());
    EXPECT_FALSE(p.Window().isVisible());
}

TEST(WindowRun, Questions_are_asked_with_the_plain_pointer)
{
    Person p("window_pointer", {"a.txt"});
    p.Running().desktop.SetPointer(Pointer::Busy);
    bool plain = false;
    p.InNextDialog([&](QWidget& dialog) {
        plain = QGuiApplication::overrideCursor() == nullptr;
        dialog.close();
    });
    p.Running().Say("Text", BoxIcon::Information);
    EXPECT_TRUE(plain);
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    p.Running().desktop.SetPointer(Pointer::Default);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace tavo
