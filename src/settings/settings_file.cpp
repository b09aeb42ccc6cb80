#include "settings/settings_file.h"

#include "core/tools.h"
#include "core/windows.h"
#include "selection/paths.h"
#include "settings/named_lists.h"
#include "settings/settings_table.h"
#include "settings/window_layout.h"
#include "thumbnails/thumb_grid.h"
#include "thumbnails/thumb_look.h"
#include "toolkit/numbers.h"
#include "toolkit/text.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr int bufferSize = 2048;
constexpr std::string_view nul("\0", 1);

// -- Values. A text that is no value of the variable leaves it as it was.

void Value_Take(std::uint8_t& value, const std::string& text)
{
    if (const auto number = ParseByte(text))
        value = static_cast<std::uint8_t>(*number);
}

void Value_Take(std::int16_t& value, const std::string& text)
{
    if (const auto number = ParseI16(text))
        value = static_cast<std::int16_t>(*number);
}

void Value_Take(std::int32_t& value, const std::string& text)
{
    value = ParseI32(text).value_or(value);
}

void Value_Take(bool& value, const std::string& text)
{
    value = ParseBool(text).value_or(value);
}

void Value_Take(std::string& value, const std::string& text)
{
    value = text;
}

template <class Number>
void Range_Hold(Number& value, const SettingRange& range)
{
    if constexpr (std::is_integral_v<Number>)
        if (range.IsOn() && (value < range.Low || value > range.High))
            value = static_cast<Number>(range.Otherwise);
}

std::string Stars_Remove(std::string text)
{
    if (text.starts_with('*'))
        text.erase(0, 1);
    if (text.ends_with('*'))
        text.pop_back();
    return text;
}

void Setting_Load(Program& p, const Setting& row, const std::string& file)
{
    std::string text =
        Ini_Get(p, std::string(row.Section), std::string(row.Key), std::string(row.Default), file);
    if (row.Form == SettingForm::Starred)
        text = Stars_Remove(text);
    if (const Variable* variable = Variable_Find(row.Key))
        Variable_Use(p.state, *variable, [&](auto& value) {
            Value_Take(value, text);
            Range_Hold(value, row.Range);
        });
    if (row.Show)
        row.Show(p, text);
}

void Keys_Load(Program& p, const std::string& section, const std::string& file)
{
    for (const Setting& row : Settings_Table())
        if (row.Section == section)
            Setting_Load(p, row, file);
}

// -- Lists

std::vector<std::string> Key_Names(Program& p, const std::string& section, const std::string& file)
{
    std::string names =
        p.profile.GetPrivateProfileStringA(section, std::nullopt, "", bufferSize, file);
    std::vector<std::string> keys;
    while (!names.empty())
        keys.push_back(Str_GetToken(names, nul, ""));
    return keys;
}

void Favorites_Load(Program& p, const std::string& section, const std::string& file)
{
    Ini_ReadList(p, section, p.state.Favorites, file, 30);
    ListMenu_Rebuild(p, &SharedState::Favorites);
    FavPath_Rebuild(p);
}

void Filters_Load(Program& p, const std::string& section, const std::string& file)
{
    Ini_ReadList(p, section, p.state.Filters, file, 20);
    p.state.Filters[0] = {"All Files", "*.*"};
    p.state.Filter = "*.*";
}

void Templates_Load(Program& p, const std::string& section, const std::string& file)
{
    Ini_ReadList(p, section, p.state.Templates, file, 30);
    p.state.Templates[0] = {"Empty", "<E>:<E>"};
    ListMenu_Rebuild(p, &SharedState::Templates);
}

void Schemes_Load(Program& p, const std::string& section, const std::string& file)
{
    constexpr std::string_view builtIn = "Tavo Default";
    constexpr int redrawDelayMs = 100;
    Ini_ReadList(p, section, p.state.ThumbSchemes, file, 30);
    p.state.ThumbSchemes[0] = {std::string(builtIn), std::string(defaultScheme)};
    p.state.Scheme = builtIn;
    Thumb_Look_Begin(p);
    p.main.tmrRedrawThumbs.Interval = redrawDelayMs;
    ListMenu_Rebuild(p, &SharedState::ThumbSchemes);
}

void Windows_Load(Program& p, const std::string& section, const std::string& file)
{
    Ini_ReadList(p, section, p.state.Windows, file, 30);
    ListMenu_Rebuild(p, &SharedState::Windows);
}

// The keys only number the words; they come in the file's order.
void CaseWords_Load(Program& p, const std::string& section, const std::string& file)
{
    p.state.CaseWordList.assign(1, "");
    for (const std::string& key : Key_Names(p, section, file))
        p.state.CaseWordList.push_back(Ini_Get(p, section, key, "", file));
}

// -- Windows' places

void MainWindow_Place(Program& p, const WindowPos& pos)
{
    if (pos.Width > 0 && pos.Height > 0) {
        p.main.Move(pos.Left, pos.Top, pos.Width, pos.Height);
    } else {
        p.main.Move(0, 0, p.state.WinDefaultW, p.state.WinDefaultH);
        Win_CenterScreen(p, p.main);
    }
    if (pos.State >= 0 && pos.State <= 2)
        p.main.SetState(static_cast<WindowState>(pos.State));
}

void Position_Load(Program& p, const std::string& section, const std::string& file)
{
    const std::string nowhere(nowhereRecord);
    Pos_Parse(p.state.MainPos, Ini_Get(p, section, "Main", nowhere, file));
    MainWindow_Place(p, p.state.MainPos);
    Pos_Parse(p.state.ViewerPos, Ini_Get(p, section, "Viewer", nowhere, file));
}

struct Section {
    std::string_view Name;
    void (*Load)(Program& p, const std::string& section, const std::string& file);
};

constexpr Section sections[] = {
    {"CaseWordList", CaseWords_Load}, {"Favorites", Favorites_Load},  {"Filters", Filters_Load},
    {"Templates", Templates_Load},    {"ThumbSchemes", Schemes_Load}, {"Windows", Windows_Load},
    {"Defaults", Keys_Load},          {"Settings", Keys_Load},        {"Position", Position_Load}};

} // namespace

std::string Ini_Get(Program& p, const std::string& section, const std::string& key,
                    const std::string& fallback, const std::string& file)
{
    const std::string text = p.profile.GetPrivateProfileStringA(section, key, "", bufferSize, file);
    return text.empty() ? fallback : text;
}

void Ini_ReadList(Program& p, const std::string& section, NamedList& list, const std::string& file,
                  int maxName)
{
    list.assign(1, {});
    for (const std::string& key : Key_Names(p, section, file))
        list.push_back({Left(key, maxName), Ini_Get(p, section, key, "", file)});
}

void Ini_Load(Program& p, const std::string& section, const std::string& file)
{
    for (const Section& row : sections)
        if (row.Name == section)
            row.Load(p, section, file);
}

void Pos_Parse(WindowPos& record, const std::string& text)
{
    std::string rest = text;
    // A field that stands empty between two commas counts as 0.
    const auto field = [&rest] {
        const std::string token = Str_GetToken(rest, ",", "0");
        return token.empty() ? std::string("0") : token;
    };
    for (std::int32_t* place : {&record.Left, &record.Top, &record.Width, &record.Height})
        Value_Take(*place, field());
    Value_Take(record.State, field());
}

} // namespace tavo
