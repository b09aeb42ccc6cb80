#include "core/frm_main.h"
#include "core/program.h"
#include "settings/settings_file.h"
#include "settings/settings_table.h"
#include "settings/window_layout.h"
#include "viewer/frm_viewer.h"

namespace tavo {

namespace {

std::string Setting_Text(Program& p, const Setting& row)
{
    if (row.Take)
        return row.Take(p);
    const Variable* variable = Variable_Find(row.Key);
    const std::string text = variable ? Variable_Text(p.state, *variable) : std::string();
    return row.Form == SettingForm::Starred ? '*' + text + '*' : text;
}

void Keys_Save(Program& p, const std::string& section, const std::string& file)
{
    for (const Setting& row : Settings_Table())
        if (row.Section == section)
            Ini_Put(p, section, std::string(row.Key), Setting_Text(p, row), file);
}

// Row 0, the built-in one, never goes into the file.
template <NamedList SharedState::*List>
void List_Save(Program& p, const std::string& section, const std::string& file)
{
    const NamedList& list = p.state.*List;
    for (std::size_t row = 1; row < list.size(); ++row)
        Ini_Put(p, section, list[row].Name, list[row].Data, file);
}

void CaseWords_Save(Program& p, const std::string& section, const std::string& file)
{
    for (std::size_t row = 1; row < p.state.CaseWordList.size(); ++row)
        Ini_Put(p, section, std::to_string(row), p.state.CaseWordList[row], file);
}

// The viewer's place is written and never read back: it opens in the middle. One
// that was not used yet is loaded for its place there.
void Position_Save(Program& p, const std::string& section, const std::string& file)
{
    std::string main(nowhereRecord), viewer(nowhereRecord);
    if (p.state.SavePos == 1) {
        p.Viewer().EnsureLoaded();
        main = Pos_Text(p.main);
        viewer = Pos_Text(p.Viewer());
    }
    Ini_Put(p, section, "Main", main, file);
    Ini_Put(p, section, "Viewer", viewer, file);
}

struct Section {
    std::string_view Name;
    void (*Save)(Program& p, const std::string& section, const std::string& file);
};

constexpr Section sections[] = {{"Settings", Keys_Save},
                                {"Defaults", Keys_Save},
                                {"Favorites", List_Save<&SharedState::Favorites>},
                                {"Filters", List_Save<&SharedState::Filters>},
                                {"Templates", List_Save<&SharedState::Templates>},
                                {"ThumbSchemes", List_Save<&SharedState::ThumbSchemes>},
                                {"Windows", List_Save<&SharedState::Windows>},
                                {"CaseWordList", CaseWords_Save},
                                {"Position", Position_Save}};

} // namespace

std::string Ini_OwnFile(const Program& p)
{
    return p.state.AppFolder + "Tavo.ini";
}

void Ini_Put(Program& p, const std::string& section, const std::string& key,
             const std::string& value, const std::string& file)
{
    p.profile.WritePrivateProfileStringA(section, key, value, file);
}

void Ini_ClearSection(Program& p, const std::string& section, const std::string& file)
{
    p.profile.WritePrivateProfileStringA(section, std::nullopt, std::nullopt, file);
}

// Cleared and written in one save: a crash in between would lose the section.
void Ini_Save(Program& p, const std::string& section, const std::string& file)
{
    const ProfileSave save(p.profile, file);
    Ini_ClearSection(p, section, file);
    for (const Section& row : sections)
        if (row.Name == section)
            row.Save(p, section, file);
}

} // namespace tavo
