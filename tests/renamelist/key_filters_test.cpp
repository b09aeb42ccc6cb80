#include "renamelist/key_filters.h"

#include "support/disk_ground.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tavo {

namespace {

using namespace std::string_literals;

// Ctrl+C, V, X, Z, Backspace, and the point's code.
const std::string always = "\x03\x16\x18\x1A\x08."s;
const std::string digits = "0123456789";
const std::string letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";

int Filtered(void (*filter)(int& key), int key)
{
    filter(key);
    return key;
}

// All keys from 1 to 255 pass when they stand in `wanted`, and no others.
void Passing_Check(void (*filter)(int& key), const std::string& wanted)
{
    for (int key = 1; key < 256; ++key) {
        const bool passes = key < 128 && wanted.find(static_cast<char>(key)) != wanted.npos;
        EXPECT_EQ(Filtered(filter, key), passes ? key : 0) << key;
    }
    for (const int key : {0x00E4, 0x0661, 0x1F600})
        EXPECT_EQ(Filtered(filter, key), 0) << key;
}

} // namespace

TEST(KeyFilters, A_number_box_takes_digits_and_the_codes_of_editing)
{
    Passing_Check(Txt_NumericKey, digits + always);
}

TEST(KeyFilters, A_letter_box_takes_letters_and_the_codes_of_editing)
{
    Passing_Check(Key_Letters, letters + always);
}

struct NameKeyCase {
    int Mode;
    std::string Refused;
};

TEST(KeyFilters, A_name_takes_all_but_what_no_name_may_hold)
{
    const NameKeyCase cases[] = {
        {modeNameNumber, "\\/:*?|\""},
        {modeSearchReplace, "\\/:*?|\"<>"},
        {modeAttributes, "\\/:*?|\"<>"},
        {modeMp3Tag, "\\/:*?|\"<>"},
    };
    for (const Ground kind : {Ground::Windows, Ground::Linux})
        for (const NameKeyCase& wanted : cases) {
            DiskGround ground(kind);
            ground.P.state.RenMode = static_cast<std::int16_t>(wanted.Mode);
            for (int typed = 0; typed < 256; ++typed) {
                const bool refused =
                    typed > 0 && typed < 128
                    && wanted.Refused.find(static_cast<char>(typed)) != std::string::npos;
                ground.G.Desktop.Boxes.clear();
                int key = typed;
                Key_FileName(ground.P, key);
                EXPECT_EQ(key, refused ? 0 : typed) << typed << " in mode " << wanted.Mode;
                EXPECT_EQ(ground.G.Desktop.Boxes.size(), refused ? 1U : 0U) << typed;
            }
        }
}

TEST(KeyFilters, The_message_names_what_is_refused)
{
    DiskGround ground(Ground::Linux);
    int key = '*';
    Key_FileName(ground.P, key);
    ASSERT_EQ(ground.G.Desktop.Boxes.size(), 1U);
    const MessageBox& box = ground.G.Desktop.Boxes[0].Box;
    EXPECT_EQ(box.Text, "File Names may not Contain \\ / : * ? < > | \" ");
    EXPECT_EQ(box.Caption, "Tavo Says...");
    EXPECT_EQ(box.Icon, BoxIcon::Information);
    EXPECT_EQ(box.Buttons, BoxButtons::Ok);
}

} // namespace tavo
