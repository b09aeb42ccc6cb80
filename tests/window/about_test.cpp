#include "window/dialog_person.h"

#include "controls/frm_about.h"
#include "hosts/qt/qt_text.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDesktopServices>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>

namespace tavo {

namespace {

class AboutPerson : public DialogPerson {
public:
    explicit AboutPerson(std::string_view test) : DialogPerson(test, {"a.txt"}) {}

    FrmAbout& Form() { return Running().About(); }
    void AtAbout(std::function<void()> step)
    {
        At([this] { About_Show(Running(), Main()); }, std::move(step));
    }
};

// The desktop's opener for the web, as long as it lives. Qt calls it by the name
// of a method that takes an address, which a signal is, too.
class Opener {
public:
    Opener()
    {
        QObject::connect(&relay_, &QTextBrowser::anchorClicked,
                         [this](const QUrl& url) { Opened.push_back(url.toString()); });
        QDesktopServices::setUrlHandler("https", &relay_, "anchorClicked");
    }
    ~Opener() { QDesktopServices::unsetUrlHandler("https"); }

    QStringList Opened;

private:
    QTextBrowser relay_;
};

} // namespace

TEST(WindowAbout, It_says_what_this_program_is)
{
    AboutPerson p("window_about");
    p.AtAbout([&] {
        EXPECT_EQ(p.Dialog().windowTitle(), "About Tavo");
        EXPECT_EQ(FromQt(p.In<QLabel>("lblVersion").text()), p.Form().lblVersion.Caption.Get());
        EXPECT_TRUE(p.In<QLabel>("lblVersion").text().startsWith("Tavo v"));
        EXPECT_FALSE(p.In<QLabel>("lblCopyright").text().isEmpty());
        const QString text = p.In<QPlainTextEdit>("txtInfo").toPlainText();
        EXPECT_FALSE(text.isEmpty());
        EXPECT_FALSE(text.contains('\r'));
        EXPECT_FALSE(p.In<QLabel>("imgLogo").pixmap().isNull());
        p.ClickIn("cmdClose");
    });
    EXPECT_FALSE(p.Form().Loaded());
}

TEST(WindowAbout, Its_tool_brings_it_up)
{
    AboutPerson p("window_about_tool");
    bool up = false;
    p.At([&] { p.Main().atbMain.PersonClick(*p.Main().atbMain.Find("ID_About")); },
         [&] {
             up = p.Form().Visible();
             p.KeyIn(Qt::Key_Escape);
         });
    EXPECT_TRUE(up);
}

TEST(WindowAbout, A_click_on_the_link_opens_its_address)
{
    AboutPerson p("window_about_link");
    Opener opener;
    p.AtAbout([&] {
        EXPECT_EQ(FromQt(p.In("lblHyperLink").toolTip()), p.Form().ctlWebSite.LinkAddress.Get());
        p.ClickIn("lblHyperLink");
        p.KeyIn(Qt::Key_Return);
    });
    EXPECT_EQ(opener.Opened, QStringList{ToQt(p.Form().ctlWebSite.LinkAddress)});
    EXPECT_FALSE(p.Form().Loaded());
}

TEST(WindowAbout, Its_text_is_read_and_copied_and_not_changed)
{
    AboutPerson p("window_about_text");
    p.AtAbout([&] {
        auto& text = p.In<QPlainTextEdit>("txtInfo");
        const QString before = text.toPlainText();
        p.ClickAt(*text.viewport(), {20, 5});
        EXPECT_EQ(p.FocusName(), "txtInfo");
        p.TypeHere("x ");
        p.KeyIn(Qt::Key_Delete);
        p.KeyIn(Qt::Key_A, Qt::ControlModifier);
        p.KeyIn(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(text.toPlainText(), before);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), before);
        p.KeyIn(Qt::Key_Tab);
        EXPECT_EQ(p.FocusName(), "cmdClose");
        p.KeyIn(Qt::Key_Space);
    });
    EXPECT_FALSE(p.Form().Loaded());
}

TEST(WindowAbout, Everything_can_be_read_and_has_a_name)
{
    const QFont before = QApplication::font();
    for (const int points : {before.pointSize(), 2 * before.pointSize()}) {
        QFont font = before;
        font.setPointSize(points);
        QApplication::setFont(font);
        AboutPerson p("window_about_names");
        p.AtAbout([&] {
            EXPECT_EQ(p.Nameless(p.Form()), std::vector<std::string>{});
            EXPECT_EQ(p.CutTexts(), std::vector<std::string>{}) << points;
            p.KeyIn(Qt::Key_Escape);
        });
    }
    QApplication::setFont(before);
}

} // namespace tavo
