#include "window/person.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QEventLoop>
#include <QLineEdit>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace tavo {

using Strings = std::vector<std::string>;

namespace {

const Strings fourFiles = {"a.txt", "b.txt", "c.txt", "d.txt"};

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
    explicit Runner(std::string_view test) : Person(test, fourFiles)
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
    Strings whilePaused;
    std::string stage;
    int turns = 0;
    OnceWhen(p.Window(), [&] { return p.RunIsUp(); }, [&] { p.Click(pause); });
    OnceWhen(p.Window(), [&] { return p.Running().state.ActPaused && ++turns > 5; }, [&] {
        p.Window().Bound().Queue().Flush();
        whilePaused = p.Files();
        stage = p.Of<QLabel>("lblActionInfo(0)").text().toStdString();
        EXPECT_EQ(pause.text(), "Continue");
        p.Click(pause);
    });
    p.Press("ID_RenAll");
    EXPECT_EQ(whilePaused, fourFiles);
    EXPECT_EQ(stage, "Paused... Press Continue to Restart");
    EXPECT_EQ(p.Stage(), "Finished! Click Done to Continue...");
    EXPECT_EQ(p.Files(), (Strings{"x1.txt", "x2.txt", "x3.txt", "x4.txt"}));
}

TEST(WindowRun, Cancel_ends_a_pause_and_the_run)
{
    Runner p("window_cancel_pause");
    OnceWhen(p.Window(), [&] { return p.RunIsUp(); },
             [&] { p.Click(p.Of<QPushButton>("cmdActPause")); });
    OnceWhen(p.Window(), [&] { return p.Running().state.ActPaused; },
             [&] { p.Click(p.Of<QPushButton>("cmdActCancel")); });
    p.Press("ID_RenAll");
    EXPECT_EQ(p.Stage(), "Finished! Click Done to Continue...");
    EXPECT_FALSE(p.Running().state.ActPaused);
    EXPECT_EQ(p.Files().back(), "x1.txt");
}

TEST(WindowRun, Escape_stops_the_run)
{
    Runner p("window_escape");
    OnceWhen(p.Window(), [&] { return p.RunIsUp(); }, [&] { p.Key(Qt::Key_Escape); });
    p.Press("ID_RenAll");
    EXPECT_TRUE(p.Running().state.ActCancel);
    EXPECT_EQ(p.Stage(), "Finished! Click Done to Continue...");
    EXPECT_NE(p.Files(), (Strings{"x1.txt", "x2.txt", "x3.txt", "x4.txt"}));
}

TEST(WindowRun, A_window_closed_in_the_midst_of_a_run_goes_when_the_run_has_ended)
{
    Runner p("window_close_run");
    bool refused = false, ended = false;
    OnceWhen(p.Window(), [&] { return p.RunIsUp(); }, [&] {
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
}

TEST(WindowRun, A_window_closed_at_rest_goes_at_once)
{
    Person p("window_close", fourFiles);
    p.Window().close();
    EXPECT_FALSE(p.Main().Loaded());
    EXPECT_FALSE(p.Window().isVisible());
}

TEST(WindowRun, Questions_are_asked_with_the_plain_pointer)
{
    Runner p("window_pointer");
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
