#include "toolkit/caption.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

struct Case {
    const char *Caption, *Plain;
    char32_t Mnemonic;
};

const Case cases[] = {
    {"", "", 0},
    {"Cut", "Cut", 0},
    {"Cu&t", "Cut", 't'},
    {"&File", "File", 'f'},
    {"Save && &Go", "Save & Go", 'g'},
    {"R&&D", "R&D", 0},
    {"&1 One", "1 One", '1'},
    {"&\xC3\x84ndern", "\xC3\x84ndern", 0xE4},
    {"End&", "End", 0},
    {"Two &a &b", "Two a b", 'a'},
    {"&Custom >>", "Custom >>", 'c'},
};

TEST(Caption, The_mark_is_taken_off_and_names_its_letter)
{
    for (const Case& row : cases) {
        EXPECT_EQ(Caption_Plain(row.Caption), row.Plain) << row.Caption;
        EXPECT_EQ(Caption_Mnemonic(row.Caption), row.Mnemonic) << row.Caption;
    }
}

} // namespace
} // namespace tavo
