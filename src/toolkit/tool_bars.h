#pragma once

#include "toolkit/caption.h"
#include "toolkit/combo_box.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

class ToolBars;

enum class ToolKind { Button, Toggle, DropDown, Combo, Edit, Label, Menu, Separator };

// How a tool shows itself.
enum class ToolStyle { Picture = 0, TextOnly = 2, PictureAndText = 3 };

// A command that stands on bands and menus. `Name` is its id. Edit and combo
// tools hold a box of the same name, which a host shows in the tool's place;
// all others have none. A menu tool holds entries of its own: the band of its
// id.
class Tool : public Control {
public:
    Tool(Form& form, const std::string& id, ToolKind kind);

    ToolKind Kind() const { return kind_; }
    Property<std::string> Caption{*this, Prop::Caption};
    Property<std::string> Description{*this, Prop::State};
    Property<std::string> Category{*this, Prop::State};
    // The icon by its name in the icon theme; empty for none.
    Property<std::string> IconName{*this, Prop::Picture};
    Property<bool> Checked{*this, Prop::Value};
    Property<ToolStyle> Style{*this, Prop::Style, ToolStyle::PictureAndText};
    tavo::Key Shortcut;
    // The box of an edit or combo tool, else null; Combo is the same box.
    std::unique_ptr<TextBox> Box;
    ComboBox* Combo() const { return combo_; }

    // In reach, as its tool bars say.
    bool IsShown() const override;
    bool IsUsable() const override;
    void PersonClick() override;
    std::optional<std::string> PropertyText(std::string_view property) const override;

private:
    friend class ToolBars;
    ToolKind kind_;
    ComboBox* combo_ = nullptr;
    ToolBars* bars_ = nullptr;
    std::vector<Connection> relays_; // from the box to the tool bars
};

// A row of tools: a toolbar, or the entries of a menu. A separator is an entry
// too.
class Band {
public:
    Band(ToolBars& bars, std::string name) : bars_(bars), name_(std::move(name)) {}
    const std::string& Name() const { return name_; }
    bool Visible() const { return visible_; }
    void SetVisible(bool on);
    const std::vector<Tool*>& Tools() const { return tools_; }
    void Add(Tool& tool);
    // Takes the entry at this position (from 1) off the band.
    void RemoveAt(int position);

private:
    ToolBars& bars_;
    std::string name_;
    bool visible_ = true;
    std::vector<Tool*> tools_;
};

// The toolbar object of a form: all its tools, its bands and its menus.
class ToolBars {
public:
    ToolBars(Form& form, std::string name);
    ~ToolBars();

    const std::string& Name() const { return name_; }
    Form& Owner() const { return form_; }

    // A tool of this id; null if there is one already.
    Tool* AddTool(const std::string& id, ToolKind kind);
    Tool* Find(std::string_view id) const;
    // Takes a tool off all bands and ends it. The band of a menu is hidden.
    void RemoveTool(const std::string& id);
    Band& AddBand(const std::string& name);
    // A band by its name, a menu by its tool's id; null if there is none.
    Band* FindBand(std::string_view name) const;
    const std::vector<std::unique_ptr<Band>>& Bands() const { return bands_; }
    std::vector<Tool*> Tools() const;

    // Is the tool in reach: shown itself, and on a band or menu that is shown
    // (and enabled, for IsUsable), or on none at all?
    bool IsShown(const Tool& tool) const;
    bool IsUsable(const Tool& tool) const;

    // A person's click. A toggle changes its state first. Does nothing for a
    // tool out of reach, nor for one that is no kind of button.
    void PersonClick(Tool& tool);
    void PersonDropDown(Tool& tool);
    // The usable tool that this key is the shortcut of; null if none.
    Tool* ForShortcut(const tavo::Key& key) const;

    Event<Tool&> ToolClick;
    Event<Tool&, int&> ToolKeyPress;      // a key in the box of a tool
    Event<Tool&, tavo::Key&> ToolKeyDown; // the same, before the filter
    Event<Tool&> ToolChange;              // its text is another
    Event<Tool&> ToolComboClick;          // a row of its list was chosen
    Event<Tool&> ToolGotFocus, ToolLostFocus;
    Event<Tool&> ToolDropDown;

    // For the host: bands or menus hold other tools, or are shown or hidden.
    Event<const Band&> BandChanged;

private:
    void WireBox(Tool& tool);
    bool HeldInReach(const Tool& tool, bool enabled, int depth) const;
    bool BandInReach(const Band& band, bool enabled, int depth) const;

    Form& form_;
    std::string name_;
    std::map<std::string, std::unique_ptr<Tool>, std::less<>> tools_;
    std::vector<std::unique_ptr<Band>> bands_;
};

} // namespace tavo
