#include "renamelist/act_run.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "selection/paths.h"

#include <algorithm>
#include <iterator>

namespace tavo {

namespace {

// Each gives the message that refuses a mode's input, or nothing.

std::string_view Refusal_Search(Program& p)
{
    constexpr int typeText = 1;
    const bool nothing = p.state.srType == typeText && p.main.txtSearchFind.Text.Get().empty();
    return nothing ? "Nothing to Find!" : "";
}

std::string_view Refusal_Destination(Program& p)
{
    constexpr int keepsFolder = 3;
    if (p.state.mcdMode == keepsFolder)
        return "";
    const std::string& typed = p.main.txtmcdPath.Text;
    if (typed.empty())
        return "There is No Destination Path!";
    std::string path = Path_AddSlash(typed, p.files.Rules());
    return Folder_Exists(p.files, path) ? "" : "The Destination Path Appears to be Invalid!";
}

std::string_view Refusal_Tag(Program& p)
{
    const bool any =
        std::ranges::any_of(p.main.chkMP3, [](const auto& box) { return box->Value.Get() == 1; });
    return any ? "" : "Check an Item to Update!";
}

struct ModeCheck {
    RenameMode Mode;
    std::string_view (*Refusal)(Program& p);
};

constexpr ModeCheck modeChecks[] = {
    {modeMoveCopy, Refusal_Destination},
    {modeSearchReplace, Refusal_Search},
    {modeMp3Tag, Refusal_Tag},
};

} // namespace

int Act_Validate(Program& p)
{
    constexpr int good = 1, refused = 2;
    const auto* check = std::ranges::find(modeChecks, p.state.RenMode, &ModeCheck::Mode);
    if (check == std::end(modeChecks))
        return good;
    const std::string_view message = check->Refusal(p);
    if (message.empty())
        return good;
    p.Say(std::string(message), BoxIcon::Information);
    return refused;
}

} // namespace tavo
