#include "renamelist/act_run.h"

#include "support/list_run.h"

#include <functional>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

class Validate : public ListRun {};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Validate, bothDialects, Dialect_Name);

struct ValidateCase {
    const char* What;
    int Mode;
    std::function<void(MemoryListGround&)> Prepare;
    const char* Message; // "" for good
};

const ValidateCase validateCases[] = {
    {"attributes", modeAttributes, nullptr, ""},
    {"case", modeCase, nullptr, ""},
    {"date", modeDateTime, nullptr, ""},
    {"numbers", modeNameNumber, nullptr, ""},
    {"empty text to find", modeSearchReplace, [](auto& g) { g.P.state.srType = 1; },
     "Nothing to Find!"},
    {"text to find", modeSearchReplace,
     [](auto& g) {
         g.P.state.srType = 1;
         g.Main.txtSearchFind.Text = "x";
     },
     ""},
    {"a range needs no text", modeSearchReplace, [](auto& g) { g.P.state.srType = 2; }, ""},
    {"no destination", modeMoveCopy, [](auto& g) { g.P.state.mcdMode = 1; },
     "There is No Destination Path!"},
    {"a destination that is none", modeMoveCopy,
     [](auto& g) {
         g.P.state.mcdMode = 2;
         g.Main.txtmcdPath.Text = g.Full("nowhere");
     },
     "The Destination Path Appears to be Invalid!"},
    {"a file is no destination", modeMoveCopy,
     [](auto& g) {
         g.P.state.mcdMode = 1;
         g.AddFile("d/file");
         g.Main.txtmcdPath.Text = g.Full("d/file");
     },
     "The Destination Path Appears to be Invalid!"},
    {"a destination", modeMoveCopy,
     [](auto& g) {
         g.P.state.mcdMode = 1;
         g.Main.txtmcdPath.Text = g.Full("app");
     },
     ""},
    {"a destination with its slash", modeMoveCopy,
     [](auto& g) {
         g.P.state.mcdMode = 1;
         g.Main.txtmcdPath.Text = g.Full("app/");
     },
     ""},
    {"kind 3 needs no destination", modeMoveCopy, [](auto& g) { g.P.state.mcdMode = 3; }, ""},
    {"nothing checked", modeMp3Tag,
     [](auto& g) {
         for (const auto& box : g.Main.chkMP3)
             box->Value = 0;
     },
     "Check an Item to Update!"},
    {"the last one checked", modeMp3Tag,
     [](auto& g) {
         for (const auto& box : g.Main.chkMP3)
             box->Value = 0;
         g.Main.chkMP3[7].Value = 1;
     },
     ""},
};

} // namespace

TEST_P(Validate, Validate_looks_at_the_input_of_the_mode)
{
    for (const ValidateCase& test : validateCases) {
        SCOPED_TRACE(test.What);
        MemoryListGround one(GetParam());
        one.P.state.RenMode = static_cast<std::int16_t>(test.Mode);
        if (test.Prepare)
            test.Prepare(one);
        const std::string message = test.Message;
        EXPECT_EQ(Act_Validate(one.P), message.empty() ? 1 : 2);
        EXPECT_EQ(one.Desktop.BoxTexts(), message.empty() ? Texts{} : Texts{message});
        for (const auto& shown : one.Desktop.Boxes) {
            EXPECT_EQ(shown.Box.Icon, BoxIcon::Information);
            EXPECT_EQ(shown.Box.Buttons, BoxButtons::Ok);
            EXPECT_EQ(shown.Box.Caption, "Tavo Says...");
        }
    }
}

} // namespace tavo
