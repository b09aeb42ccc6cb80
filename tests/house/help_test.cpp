#include "core/commands.h"
#include "hosts/console/commands.h"
#include "renamelist/templates.h"
#include "settings/settings_table.h"
#include "toolkit/caption.h"
#include "viewer/viewer_parts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <span>
#include <sstream>
#include <utility>

// The help is read as text: it is whole, needs nothing from outside, and tells
// of everything that the program's own tables hold.

namespace tavo {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;
using NameSet = std::set<std::string>;

constexpr std::size_t pictureSizeLimit = 100 * 1024;

std::string Source_Path(const std::string& name)
{
    return TAVO_SOURCE_DIR "/" + name;
}

std::string Help_Path(const std::string& name)
{
    return Source_Path("help/" + name);
}

std::string File_Text(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path;
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// -- Reading a page

struct Tag {
    std::string Name;
    std::map<std::string, std::string> Attributes;
    std::string Text; // all text within, with single blanks
    std::string Value(const std::string& attribute) const
    {
        const auto found = Attributes.find(attribute);
        return found == Attributes.end() ? "" : found->second;
    }
};

// The tags in the order of their beginnings. A fault is a text that a person
// can look for.
struct Page {
    std::vector<Tag> Tags;
    Names Faults;

    std::vector<Tag> All(std::string_view name) const
    {
        std::vector<Tag> found;
        for (const Tag& tag : Tags)
            if (tag.Name == name)
                found.push_back(tag);
        return found;
    }
    // The texts of all tags of a name.
    NameSet Texts(std::string_view name) const
    {
        NameSet texts;
        for (const Tag& tag : All(name))
            texts.insert(tag.Text);
        return texts;
    }
    NameSet Ids() const
    {
        NameSet ids;
        for (const Tag& tag : Tags)
            if (!tag.Value("id").empty())
                ids.insert(tag.Value("id"));
        return ids;
    }
};

bool IsBlank(char c)
{
    return c == ' ' || c == '\n' || c == '\t';
}

// One walk over a page, which is written as strictly as XML: every tag is
// closed, by `/>` where it holds nothing, and every value stands in quotes.
class PageReader {
public:
    explicit PageReader(std::string_view text) : text_(text) {}

    Page Read()
    {
        constexpr std::string_view kind = "<!DOCTYPE html>\n";
        if (text_.starts_with(kind))
            at_ = kind.size();
        else
            Fault("does not begin as a page");
        while (at_ < text_.size())
            text_[at_] == '<' ? ReadTag() : ReadText();
        for (const std::size_t open : open_)
            Fault("never closed: " + page_.Tags[open].Name);
        LookForDoubleIds();
        return std::move(page_);
    }

private:
    void Fault(const std::string& text) { page_.Faults.push_back(text); }

    void ReadText()
    {
        if (text_[at_] == '&')
            return ReadEntity();
        if (text_[at_] == '>')
            Fault("a bare >");
        Add(text_[at_++]);
    }

    void ReadEntity()
    {
        static const std::map<std::string_view, char> entities = {
            {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}};
        for (const auto& [entity, character] : entities)
            if (text_.substr(at_).starts_with(entity)) {
                at_ += entity.size();
                return Add(character);
            }
        Fault("a bare &");
        ++at_;
    }

    // To the text of everything that is open.
    void Add(char c)
    {
        for (const std::size_t open : open_) {
            std::string& text = page_.Tags[open].Text;
            if (!IsBlank(c))
                text += c;
            else if (!text.ends_with(' '))
                text += ' ';
        }
    }

    void ReadTag()
    {
        const std::size_t end = text_.find('>', at_);
        if (end == text_.npos) {
            at_ = text_.size();
            return Fault("a tag without an end");
        }
        std::string_view inside = text_.substr(at_ + 1, end - at_ - 1);
        at_ = end + 1;
        if (inside.starts_with('/'))
            return Close(std::string(inside.substr(1)));
        const bool alone = inside.ends_with('/');
        if (alone)
            inside.remove_suffix(1);
        Tag tag;
        tag.Name = Word(inside);
        ReadAttributes(inside, tag);
        page_.Tags.push_back(std::move(tag));
        if (!alone)
            open_.push_back(page_.Tags.size() - 1);
    }

    static std::string Word(std::string_view& rest)
    {
        const std::size_t end = std::min(rest.find_first_of(" \n="), rest.size());
        const std::string word(rest.substr(0, end));
        rest.remove_prefix(end);
        return word;
    }

    void ReadAttributes(std::string_view rest, Tag& tag)
    {
        while (true) {
            while (!rest.empty() && IsBlank(rest.front()))
                rest.remove_prefix(1);
            if (rest.empty())
                return;
            const std::string name = Word(rest);
            const std::size_t end = rest.starts_with("=\"") ? rest.find('"', 2) : rest.npos;
            if (end == rest.npos || name.empty())
                return Fault("an attribute of " + tag.Name + " is not name=\"value\"");
            if (!tag.Attributes.emplace(name, rest.substr(2, end - 2)).second)
                Fault("the attribute " + name + " stands twice in a " + tag.Name);
            rest.remove_prefix(end + 1);
        }
    }

    void Close(const std::string& name)
    {
        const std::string open = open_.empty() ? "nothing" : page_.Tags[open_.back()].Name;
        if (open != name)
            return Fault("/" + name + " closes " + open);
        open_.pop_back();
    }

    void LookForDoubleIds()
    {
        NameSet ids;
        for (const Tag& tag : page_.Tags)
            if (!tag.Value("id").empty() && !ids.insert(tag.Value("id")).second)
                Fault("the id " + tag.Value("id") + " stands twice");
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::vector<std::size_t> open_; // indexes of tags
    Page page_;
};

Page Page_Read(std::string_view text)
{
    return PageReader(text).Read();
}

const std::map<std::string, Page>& Pages()
{
    static const std::map<std::string, Page> pages = [] {
        std::map<std::string, Page> read;
        for (const auto& entry : fs::directory_iterator(Help_Path("")))
            if (entry.path().extension() == ".htm")
                read[entry.path().filename().string()] = Page_Read(File_Text(entry.path()));
        return read;
    }();
    return pages;
}

// The texts of all tags of a name, on all pages.
NameSet Texts(std::string_view name)
{
    NameSet texts;
    for (const auto& [file, page] : Pages())
        texts.merge(page.Texts(name));
    return texts;
}

// -- The reader itself

TEST(Help, The_reader_of_pages_finds_faults)
{
    struct Row {
        std::string Text, Fault;
    };
    const Row rows[] = {
        {"<p>a &lt; b &amp; c</p>", ""},
        {"<p class=\"x\" id=\"y\">a<br /></p>", ""},
        {"<p>a", "never closed: p"},
        {"<p><b>a</p></b>", "/p closes b"},
        {"a</p>", "/p closes nothing"},
        {"<p>a & b</p>", "a bare &"},
        {"<p>a > b</p>", "a bare >"},
        {"<p class=x>a</p>", "an attribute of p is not name=\"value\""},
        {"<p class>a</p>", "an attribute of p is not name=\"value\""},
        {"<p id=\"a\">a</p><p id=\"a\">b</p>", "the id a stands twice"},
        {"<p id=\"a\" id=\"b\">a</p>", "the attribute id stands twice in a p"},
        {"<p", "a tag without an end"},
    };
    for (const Row& row : rows) {
        const Names faults = Page_Read("<!DOCTYPE html>\n" + row.Text).Faults;
        EXPECT_EQ(faults.empty() ? "" : faults.front(), row.Fault) << row.Text;
    }
    EXPECT_EQ(Page_Read("<p>a</p>").Faults, Names{"does not begin as a page"});
    const Page page = Page_Read("<!DOCTYPE html>\n<p>a\n  &lt;<b>#&gt;</b></p>");
    EXPECT_EQ(page.Texts("p"), NameSet{"a <#>"});
    EXPECT_EQ(page.Texts("b"), NameSet{"#>"});
}

// -- Form

TEST(Help, Every_page_is_well_formed)
{
    ASSERT_GE(Pages().size(), 10u);
    for (const auto& [file, page] : Pages()) {
        EXPECT_EQ(page.Faults, Names()) << file;
        ASSERT_EQ(page.All("html").size(), 1u) << file;
        EXPECT_EQ(page.All("html").front().Value("lang"), "en") << file;
        EXPECT_EQ(page.All("main").size(), 1u) << file;
        EXPECT_EQ(page.All("h1").size(), 1u) << file;
        ASSERT_EQ(page.All("title").size(), 1u) << file;
        EXPECT_TRUE(page.All("title").front().Text.ends_with("Tavo Help")) << file;
        EXPECT_EQ(page.All("link").size(), 1u) << file;
    }
}

// Who is read to jumps from heading to heading.
TEST(Help, Headings_go_down_one_step_at_a_time)
{
    for (const auto& [file, page] : Pages()) {
        int level = 0;
        for (const Tag& tag : page.Tags) {
            if (tag.Name.size() != 2 || tag.Name[0] != 'h' || tag.Name == "hr")
                continue;
            const int next = tag.Name[1] - '0';
            EXPECT_LE(next, level + 1) << file << ": " << tag.Text;
            level = next;
        }
    }
}

TEST(Help, Every_table_has_headers_and_every_picture_has_words)
{
    for (const auto& [file, page] : Pages()) {
        EXPECT_EQ(page.All("table").size(), page.All("thead").size()) << file;
        for (const Tag& header : page.All("th"))
            EXPECT_EQ(header.Value("scope"), "col") << file << ": " << header.Text;
        for (const Tag& picture : page.All("img"))
            EXPECT_GT(picture.Value("alt").size(), 20u) << file << ": " << picture.Value("src");
    }
}

// -- Ways

// Where a link of a page goes: a page and an id, each possibly empty.
std::pair<std::string, std::string> Target(const std::string& link)
{
    const std::size_t mark = std::min(link.find('#'), link.size());
    return {link.substr(0, mark), mark < link.size() ? link.substr(mark + 1) : ""};
}

TEST(Help, Every_page_is_reached_from_the_first)
{
    NameSet reached;
    Names ahead = {"index.htm"};
    while (!ahead.empty()) {
        const std::string file = ahead.back();
        ahead.pop_back();
        if (!Pages().contains(file) || !reached.insert(file).second)
            continue;
        for (const Tag& link : Pages().at(file).All("a"))
            ahead.push_back(Target(link.Value("href")).first);
    }
    for (const auto& [file, page] : Pages())
        EXPECT_TRUE(reached.contains(file)) << file;
}

TEST(Help, Every_link_leads_to_a_page_and_a_place_on_it)
{
    for (const auto& [file, page] : Pages())
        for (const Tag& link : page.All("a")) {
            auto [name, id] = Target(link.Value("href"));
            if (name.empty())
                name = file;
            const auto target = Pages().find(name);
            ASSERT_TRUE(target != Pages().end()) << file << ": " << link.Value("href");
            EXPECT_TRUE(id.empty() || target->second.Ids().contains(id))
                << file << ": " << link.Value("href");
        }
}

TEST(Help, Every_page_has_all_pages_in_its_navigation_and_marks_itself)
{
    for (const auto& [file, page] : Pages()) {
        NameSet all, linked, marked;
        for (const auto& [name, other] : Pages())
            all.insert(name);
        for (const Tag& link : page.All("a")) {
            linked.insert(link.Value("href"));
            if (link.Value("aria-current") == "page")
                marked.insert(link.Value("href"));
        }
        EXPECT_TRUE(std::ranges::includes(linked, all)) << file;
        EXPECT_EQ(marked, NameSet{file}) << file;
        EXPECT_EQ(page.All("nav").front().Text, Pages().at("index.htm").All("nav").front().Text)
            << file;
    }
}

// -- Pictures

NameSet PicturesShown()
{
    NameSet shown;
    for (const auto& [file, page] : Pages())
        for (const Tag& picture : page.All("img"))
            shown.insert(picture.Value("src"));
    return shown;
}

TEST(Help, Every_picture_that_is_shown_is_there_and_small)
{
    ASSERT_FALSE(PicturesShown().empty());
    for (const std::string& picture : PicturesShown()) {
        ASSERT_TRUE(fs::exists(Help_Path(picture))) << picture;
        EXPECT_LT(fs::file_size(Help_Path(picture)), pictureSizeLimit) << picture;
        EXPECT_TRUE(File_Text(Help_Path(picture)).starts_with("\x89PNG")) << picture;
    }
}

// So that no picture stays as the window was long ago.
TEST(Help, Every_picture_is_shown_and_made_by_the_script)
{
    const std::string script = File_Text(Source_Path("tools/help_pictures.sh"));
    for (const auto& entry : fs::directory_iterator(Help_Path("pictures"))) {
        const std::string name = entry.path().stem().string();
        EXPECT_TRUE(PicturesShown().contains("pictures/" + name + ".png")) << name;
        EXPECT_NE(script.find("shoot " + name + "\n"), script.npos) << name;
    }
}

// -- Nothing from outside

TEST(Help, No_page_needs_the_network_or_a_script)
{
    Names files = {"style.css"};
    for (const auto& [file, page] : Pages())
        files.push_back(file);
    for (const std::string& file : files) {
        const std::string text = File_Text(Help_Path(file));
        for (const char* outside :
             {"http:", "https:", "//", "<script", "javascript:", "@import", "url("})
            EXPECT_EQ(text.find(outside), text.npos) << file << " holds " << outside;
    }
}

TEST(Help, The_look_follows_dark_desktops_and_narrow_windows)
{
    const std::string style = File_Text(Help_Path("style.css"));
    EXPECT_NE(style.find("prefers-color-scheme: dark"), style.npos);
    EXPECT_NE(style.find("min-width"), style.npos);
    for (const auto& [file, page] : Pages()) {
        const std::vector<Tag> hints = page.All("meta");
        const auto isViewport = [](const Tag& tag) { return tag.Value("name") == "viewport"; };
        EXPECT_TRUE(std::ranges::any_of(hints, isViewport)) << file;
    }
}

// -- Everything is told

TEST(Help, Every_key_of_the_settings_file_is_told_with_its_default)
{
    const std::string text = File_Text(Help_Path("settings-file.htm"));
    const NameSet codes = Pages().at("settings-file.htm").Texts("code");
    for (const Setting& setting : Settings_Table()) {
        EXPECT_TRUE(codes.contains(std::string(setting.Key))) << setting.Key;
        if (setting.Form != SettingForm::Plain || setting.Default.empty())
            continue; // told in words
        const std::string row = "<code>" + std::string(setting.Key) + "</code></td><td>"
                                + std::string(setting.Default) + "</td>";
        EXPECT_NE(text.find(row), text.npos) << row;
    }
    for (const char* section : {"Favorites", "Filters", "Templates", "ThumbSchemes", "Windows",
                                "CaseWordList", "Position"})
        EXPECT_TRUE(codes.contains("[" + std::string(section) + "]")) << section;
}

TEST(Help, Every_command_of_the_console_is_told)
{
    NameSet told;
    for (const std::string& code : Pages().at("console.htm").Texts("code"))
        told.insert(code.substr(0, code.find(' ')));
    const std::string manual = File_Text(Source_Path("packaging/man/tavo-console.1"));
    for (const auto* table :
         {&console::Commands_Boxes(), &console::Commands_Lists(), &console::Commands_Mouse(),
          &console::Commands_Windows(), &console::Commands_Read()})
        for (const console::CommandRow& row : *table) {
            const std::string name(row.Name);
            EXPECT_TRUE(told.contains(name)) << name;
            EXPECT_TRUE(manual.find("\n.B " + name + "\n") != manual.npos
                        || manual.find("\n.BI " + name + " ") != manual.npos)
                << name;
        }
}

// The captions as a person sees them, without the mark of the letter for Alt.
// Menus and separators only lead to them.
NameSet Captions_OnBands(std::span<const Command> commands, std::span<const BandPlan> bands)
{
    NameSet captions;
    for (const BandPlan& band : bands)
        for (const std::string_view id : band.Tools) {
            const auto command = std::ranges::find(commands, id, &Command::Id);
            const bool leads = command == commands.end() || command->Kind == ToolKind::Menu;
            if (!leads)
                captions.insert(Caption_Plain(command->Caption));
        }
    return captions;
}

TEST(Help, Every_button_and_every_entry_of_a_menu_is_told)
{
    const NameSet told = Texts("b");
    const NameSet window = Captions_OnBands(Commands(), CommandBands());
    const NameSet viewer = Captions_OnBands(Viewer_Commands(), Viewer_Bands());
    ASSERT_GT(window.size(), 50u);
    ASSERT_GT(viewer.size(), 10u);
    for (const NameSet& captions : {window, viewer})
        for (const std::string& caption : captions)
            EXPECT_TRUE(told.contains(caption)) << caption;
}

TEST(Help, Every_token_of_templates_is_told)
{
    const NameSet codes = Pages().at("templates.htm").Texts("code");
    const std::string manual = File_Text(Source_Path("packaging/man/tavo.1"));
    Names tokens = {"<E>", "<ER>"};
    for (const TemplateToken& token : Template_Tokens())
        tokens.emplace_back(token.Token);
    for (const std::string& token : tokens) {
        EXPECT_TRUE(codes.contains(token)) << token;
        EXPECT_NE(manual.find(token), manual.npos) << token;
    }
}

TEST(Help, The_first_rename_takes_ten_lines)
{
    const std::string text = File_Text(Help_Path("index.htm"));
    const std::size_t begin = text.find("<ol>"), end = text.find("</ol>");
    ASSERT_LT(begin, end);
    const Page list = Page_Read("<!DOCTYPE html>\n" + text.substr(begin, end + 5 - begin));
    EXPECT_EQ(list.Faults, Names());
    EXPECT_EQ(list.All("li").size(), 10u);
}

} // namespace
} // namespace tavo
