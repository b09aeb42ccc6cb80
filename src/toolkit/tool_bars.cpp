#include "toolkit/tool_bars.h"

#include "toolkit/form.h"
#include "toolkit/numbers.h"
#include "toolkit/property_table.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr PropertyRow<Tool> toolProperties[] = {
    {"Name", [](const Tool& t) { return t.Name(); }},
    {"Caption", [](const Tool& t) { return t.Caption.Get(); }},
    {"Description", [](const Tool& t) { return t.Description.Get(); }},
    {"Category", [](const Tool& t) { return t.Category.Get(); }},
    {"Left", [](const Tool& t) { return Length_Text(t.Left); }},
    {"Top", [](const Tool& t) { return Length_Text(t.Top); }},
    {"Width", [](const Tool& t) { return Length_Text(t.Width); }},
    {"Height", [](const Tool& t) { return Length_Text(t.Height); }},
    {"ToolTipText", [](const Tool& t) { return t.ToolTipText.Get(); }},
    {"Tag", [](const Tool& t) { return t.Tag.Get(); }},
    {"Enabled", [](const Tool& t) { return Bool_Text(t.Enabled); }},
    {"Visible", [](const Tool& t) { return Bool_Text(t.Visible); }},
    {"Checked", [](const Tool& t) { return Bool_Text(t.Checked); }},
    {"Value", [](const Tool& t) { return Tick_Text(t.Checked); }},
    {"Style", [](const Tool& t) { return IntToText(static_cast<int>(t.Style.Get())); }},
};

// What a tool says of its box as its own.
constexpr std::string_view boxProperties[] = {
    "Text", "ListIndex", "ListCount", "SelStart", "SelLength", "SelText", "MaxLength",
};

bool IsOneOf(std::string_view text, const auto& table)
{
    return std::find(std::begin(table), std::end(table), text) != std::end(table);
}

bool IsButton(ToolKind kind)
{
    return kind == ToolKind::Button || kind == ToolKind::Toggle || kind == ToolKind::DropDown;
}

bool Holds(const Band& band, const Tool& tool)
{
    const auto& tools = band.Tools();
    return std::find(tools.begin(), tools.end(), &tool) != tools.end();
}

// Menus are not nested deeper than this; it ends a menu that holds itself.
constexpr int deepestMenu = 16;

} // namespace

Tool::Tool(Form& form, const std::string& id, ToolKind kind) : Control(form, id), kind_(kind)
{
    if (kind == ToolKind::Combo) {
        auto combo = std::make_unique<ComboBox>(form, id);
        combo_ = combo.get();
        Box = std::move(combo);
    } else if (kind == ToolKind::Edit) {
        Box = std::make_unique<TextBox>(form, id);
    }
    if (Box)
        Box->Container = this;
}

bool Tool::IsShown() const
{
    return bars_ ? bars_->IsShown(*this) : Control::IsShown();
}

bool Tool::IsUsable() const
{
    return bars_ ? bars_->IsUsable(*this) : Control::IsUsable();
}

void Tool::PersonClick()
{
    if (bars_)
        bars_->PersonClick(*this);
}

std::optional<std::string> Tool::PropertyText(std::string_view property) const
{
    if (Box && IsOneOf(property, boxProperties))
        return Box->PropertyText(property);
    return PropertyTable_Text(toolProperties, *this, property);
}

void Band::SetVisible(bool on)
{
    if (on == visible_)
        return;
    visible_ = on;
    bars_.BandChanged(*this);
}

void Band::Add(Tool& tool)
{
    tools_.push_back(&tool);
    bars_.BandChanged(*this);
}

void Band::RemoveAt(int position)
{
    if (position < 1 || position > static_cast<int>(tools_.size()))
        return;
    tools_.erase(tools_.begin() + (position - 1));
    bars_.BandChanged(*this);
}

ToolBars::ToolBars(Form& form, std::string name) : form_(form), name_(std::move(name))
{
    form_.Bars = this;
}

ToolBars::~ToolBars()
{
    if (form_.Bars == this)
        form_.Bars = nullptr;
}

Tool* ToolBars::AddTool(const std::string& id, ToolKind kind)
{
    if (Find(id))
        return nullptr;
    auto& tool = tools_[id];
    tool = std::make_unique<Tool>(form_, id, kind);
    tool->bars_ = this;
    if (tool->Box)
        WireBox(*tool);
    return tool.get();
}

void ToolBars::WireBox(Tool& tool)
{
    TextBox& box = *tool.Box;
    auto& relays = tool.relays_;
    Tool* const self = &tool;
    relays.push_back(box.KeyPress.Listen([this, self](int& key) { ToolKeyPress(*self, key); }));
    relays.push_back(box.KeyDown.Listen([this, self](Key& key) { ToolKeyDown(*self, key); }));
    relays.push_back(box.Change.Listen([this, self] { ToolChange(*self); }));
    relays.push_back(box.GotFocus.Listen([this, self] { ToolGotFocus(*self); }));
    relays.push_back(box.LostFocus.Listen([this, self] { ToolLostFocus(*self); }));
    if (tool.Combo())
        relays.push_back(box.Click.Listen([this, self] { ToolComboClick(*self); }));
}

Tool* ToolBars::Find(std::string_view id) const
{
    const auto found = tools_.find(id);
    return found == tools_.end() ? nullptr : found->second.get();
}

void ToolBars::RemoveTool(const std::string& id)
{
    const auto found = tools_.find(id);
    if (found == tools_.end())
        return;
    // Out of the table first: a listener that hears of the bands must not
    // find it any more. It ends with this procedure.
    const std::unique_ptr<Tool> tool = std::move(found->second);
    tools_.erase(found);
    for (const auto& band : bands_)
        for (int at = static_cast<int>(band->Tools().size()); at > 0; --at)
            if (band->Tools()[static_cast<size_t>(at - 1)] == tool.get())
                band->RemoveAt(at);
    Band* const menu = tool->Kind() == ToolKind::Menu ? FindBand(tool->Name()) : nullptr;
    if (menu)
        menu->SetVisible(false);
}

Band& ToolBars::AddBand(const std::string& name)
{
    if (Band* band = FindBand(name))
        return *band;
    bands_.push_back(std::make_unique<Band>(*this, name));
    return *bands_.back();
}

Band* ToolBars::FindBand(std::string_view name) const
{
    for (const auto& band : bands_)
        if (band->Name() == name)
            return band.get();
    return nullptr;
}

std::vector<Tool*> ToolBars::Tools() const
{
    std::vector<Tool*> tools;
    for (const auto& [id, tool] : tools_)
        tools.push_back(tool.get());
    return tools;
}

bool ToolBars::IsShown(const Tool& tool) const
{
    return tool.Visible && HeldInReach(tool, false, 0);
}

bool ToolBars::IsUsable(const Tool& tool) const
{
    return tool.Enabled && HeldInReach(tool, true, 0);
}

bool ToolBars::HeldInReach(const Tool& tool, bool enabled, int depth) const
{
    bool stands = false;
    for (const auto& band : bands_) {
        if (!Holds(*band, tool))
            continue;
        stands = true;
        if (BandInReach(*band, enabled, depth))
            return true;
    }
    return !stands;
}

bool ToolBars::BandInReach(const Band& band, bool enabled, int depth) const
{
    if (!band.Visible() || depth > deepestMenu)
        return false;
    const Tool* menu = Find(band.Name());
    if (!menu || menu->Kind() != ToolKind::Menu)
        return true;
    const bool open = menu->Visible && (!enabled || menu->Enabled);
    return open && HeldInReach(*menu, enabled, depth + 1);
}

void ToolBars::PersonClick(Tool& tool)
{
    if (!IsButton(tool.Kind()) || !IsShown(tool) || !IsUsable(tool))
        return;
    if (tool.Kind() == ToolKind::Toggle)
        tool.Checked = !tool.Checked;
    ToolClick(tool);
}

void ToolBars::PersonDropDown(Tool& tool)
{
    if (tool.Kind() == ToolKind::DropDown && IsShown(tool) && IsUsable(tool))
        ToolDropDown(tool);
}

Tool* ToolBars::ForShortcut(const tavo::Key& key) const
{
    for (const auto& [id, tool] : tools_) {
        const tavo::Key& wanted = tool->Shortcut;
        if (wanted.Code == keyNone || wanted.Code != key.Code || wanted.Shift != key.Shift)
            continue;
        if (IsShown(*tool) && IsUsable(*tool))
            return tool.get();
    }
    return nullptr;
}

} // namespace tavo
