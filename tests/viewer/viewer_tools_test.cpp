#include "viewer/viewer_parts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tavo {
namespace {

using Ids = std::set<std::string_view>;

TEST(ViewerCommands, No_id_stands_twice_and_each_has_a_caption_and_a_category)
{
    Ids ids;
    for (const Command& command : Viewer_Commands()) {
        EXPECT_TRUE(ids.insert(command.Id).second) << command.Id;
        EXPECT_TRUE(command.Id.starts_with("ID_")) << command.Id;
        EXPECT_FALSE(command.Caption.empty()) << command.Id;
        EXPECT_FALSE(command.Category.empty()) << command.Id;
        EXPECT_TRUE(command.Shortcut.empty()) << command.Id;
    }
}

TEST(ViewerCommands, Every_button_does_something_but_those_that_are_named_here)
{
    Ids without;
    for (const Command& command : Viewer_Commands())
        if ((command.Kind == ToolKind::Button || command.Kind == ToolKind::Toggle) && !command.Run)
            without.insert(command.Id);
    EXPECT_EQ(without, (Ids{"ID_ShowPreview"}));
}

TEST(ViewerCommands, Every_entry_of_a_band_is_a_tool_and_every_menu_has_its_entries)
{
    const auto commands = Viewer_Commands();
    for (const BandPlan& plan : Viewer_Bands()) {
        EXPECT_TRUE(plan.Tools.back().empty()) << plan.Name;
        for (const std::string_view id : plan.Tools)
            if (!id.empty() && id != "-") {
                EXPECT_NE(std::ranges::find(commands, id, &Command::Id), commands.end())
                    << plan.Name << ": " << id;
            }
    }
    for (const Command& command : commands)
        if (command.Kind == ToolKind::Menu) {
            EXPECT_NE(std::ranges::find(Viewer_Bands(), command.Id, &BandPlan::Name),
                      Viewer_Bands().end())
                << command.Id;
        }
}

} // namespace
} // namespace tavo
