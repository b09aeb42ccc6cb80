#include "hosts/qt/qt_text.h"

#include <gtest/gtest.h>

#include <QUrl>

namespace tavo {

namespace {

std::string Bytes(int first, int second)
{
    return {static_cast<char>(first), static_cast<char>(second)};
}

} // namespace

TEST(QtText, All_pairs_of_bytes_come_back_unchanged)
{
    for (int first = 0; first < 256; ++first)
        for (int second = 0; second < 256; ++second) {
            const std::string pair = Bytes(first, second);
            const std::string framed = "a" + pair + "\xC3\xA4";
            ASSERT_EQ(FromQt(ToQt(pair)), pair) << first << " " << second;
            ASSERT_EQ(FromQt(ToQt(framed)), framed) << first << " " << second;
        }
}

TEST(QtText, All_code_points_come_back_unchanged)
{
    for (char32_t code = 1; code <= 0x10FFFF; ++code) {
        if (code >= 0xD800 && code <= 0xDFFF)
            continue;
        const QString text = QString::fromUcs4(&code, 1);
        ASSERT_EQ(ToQt(FromQt(text)), text) << static_cast<unsigned>(code);
        ASSERT_EQ(FromQt(text), text.toStdString()) << static_cast<unsigned>(code);
    }
}

TEST(QtText, Broken_sequences_of_UTF_8_keep_each_byte)
{
    const char* const texts[] = {"\xED\xB2\x80",     "\xED\xA0\x80\xED\xB0\x80",
                                 "\xF4\x90\x80\x80", "\xC0\x80",
                                 "\xE2\x82",         "\xF0\x9F\x98",
                                 "a\xE2\x82z",       "\xF0\x9F\x98\x80\x80",
                                 "\xFF\xFE"};
    for (const char* text : texts)
        EXPECT_EQ(FromQt(ToQt(text)), text) << text;
}

TEST(QtText, A_stray_byte_is_one_low_surrogate)
{
    const QString text = ToQt("a\xFF");
    ASSERT_EQ(text.size(), 2);
    EXPECT_EQ(text[1].unicode(), 0xDCFF);
}

TEST(QtText, A_NUL_does_not_end_a_text)
{
    const std::string text("a\0\xFF\0", 4);
    EXPECT_EQ(FromQt(ToQt(text)), text);
}

TEST(QtText, A_lone_surrogate_that_is_no_byte_becomes_the_unknown_character)
{
    EXPECT_EQ(FromQt(QString(QChar(0xD800)) + "x"), "\xEF\xBF\xBDx");
    EXPECT_EQ(FromQt(QString(QChar(0xDC7F))), "\xEF\xBF\xBD");
}

TEST(QtText, Positions_count_characters_here_and_units_there)
{
    struct Row {
        int Chars, Units;
    };
    const QString text = ToQt("a\xF0\x9F\x98\x80\xFF"
                              "b");
    ASSERT_EQ(Chars_In(text), 4);
    for (const auto& [chars, units] : {Row{0, 0}, Row{1, 1}, Row{2, 3}, Row{3, 4}, Row{4, 5}}) {
        EXPECT_EQ(Units_OfChars(text, chars), units) << chars;
        EXPECT_EQ(Chars_OfUnits(text, units), chars) << units;
    }
    EXPECT_EQ(Units_OfChars(text, 9), 5);
    EXPECT_EQ(Chars_OfUnits(text, 9), 4);
}

TEST(QtText, Paths_of_any_bytes_pass_through_a_list_of_addresses)
{
    const std::vector<std::string> paths = {"/a b/c%20d", "/\xFF\xC3\xA4/new\nline",
                                            "/#?[x]&=", "/"};
    EXPECT_EQ(Paths_InUriList(UriList_Of(paths)), paths);
}

TEST(QtText, Other_programs_read_our_addresses)
{
    const QByteArray list = UriList_Of({"/a b/\xC3\xA4#.txt"});
    EXPECT_EQ(QUrl::fromEncoded(list.trimmed()).toLocalFile(), QString("/a b/\u00e4#.txt"));
}

TEST(QtText, Comments_and_foreign_addresses_are_left_out_of_a_list)
{
    const QByteArray list = "# two files\r\nfile:///x\r\nhttp://host/y\r\nfile://localhost/z\r\n"
                            "file://elsewhere.invalid/w\r\n\r\n";
    EXPECT_EQ(Paths_InUriList(list), (std::vector<std::string>{"/x", "/z"}));
}

} // namespace tavo
