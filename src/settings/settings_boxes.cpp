#include "settings/settings_pages.h"

#include "core/program.h"
#include "renamelist/preview.h"
#include "renamelist/templates.h"
#include "thumbnails/frm_thumb_editor.h"
#include "thumbnails/thumb_look.h"
#include "toolkit/text.h"

#include <utility>

namespace tavo {

namespace {

// What a box refuses, key by key, and tells of it; Clean takes away what came
// in otherwise.
struct BoxRule {
    std::string_view Refused, Message;
};
constexpr BoxRule nameRule = {"=", "Names may not Contain = "};
constexpr BoxRule templateRule = {"\\/:*?|\"", "Templates may not Contain \\ / : * ? | \" "};
constexpr BoxRule dataRules[] = {
    templateRule,
    templateRule,
    {"*?<>|\"", "Paths may not Contain * ? < > | \" "},
    {"\\/:<>|\"", "Filters may not Contain \\ / : < > | \" "},
    {"", ""}, // the other two are locked
    {"", ""},
};

bool Is_Refused(const BoxRule& rule, int key)
{
    return key > 0 && key < 128 && rule.Refused.find(static_cast<char>(key)) != rule.Refused.npos;
}

void Key_Filter(Program& p, const BoxRule& rule, int& key)
{
    if (!Is_Refused(rule, key))
        return;
    key = 0;
    p.Say(std::string(rule.Message), BoxIcon::Information);
}

void Box_Clean(TextBox& box, const BoxRule& rule)
{
    std::string text = box.Text;
    std::erase_if(text, [&](char c) { return rule.Refused.find(c) != rule.Refused.npos; });
    box.Text = text;
}

void Template_Clean(TextBox& box)
{
    std::string text = box.Text;
    Tmpl_CheckBox(text, true);
    box.Text = text;
}

void Box_Wire(Program& p, FrmSettings& form, TextBox& box, const BoxRule& rule)
{
    box.GotFocus = [&box] { Box_SelectAll(box); };
    box.KeyPress = [&p, &rule](int& key) { Key_Filter(p, rule, key); };
    box.Change = [&form] { form.ItemDirty = form.ItemDirty || !form.Filling; };
    if (&rule == &dataRules[templateName] || &rule == &dataRules[templateExt])
        box.LostFocus = [&box] { Template_Clean(box); };
    else
        box.LostFocus = [&box, &rule] { Box_Clean(box, rule); };
}

// The mode only names the two boxes.
void Mode_Show(FrmSettings& form)
{
    const bool number = form.cboMode.ListIndex() == 0;
    form.lblData[templateName].Caption = number ? "File Name" : "Search";
    form.lblData[templateExt].Caption = number ? "Ext" : "Replace";
    for (const int box : {templateName, templateExt})
        form.txtData[box].AccessibleName = form.lblData[box].Caption;
    for (const auto& label : form.lblTmpInsert)
        label->Enabled = number;
}

void Token_Insert(FrmSettings& form, const std::string& token)
{
    auto* box = dynamic_cast<TextBox*>(form.ActiveControl());
    if (box && !box->Locked && LCase(box->Name()) == "txtdata")
        box->SetSelText(token);
}

void Name_FromPath(FrmSettings& form)
{
    TextBox& name = form.txtName[pageFavorites];
    name.Text = form.txtData[pageFavorites].Text;
    Box_Clean(name, nameRule);
}

// From an editor that is up already there is no way into another one.
void Scheme_Edit(Program& p)
{
    if (p.ThumbEditor().Loaded())
        return;
    TextBox& box = p.Settings().txtData[pageSchemes];
    p.state.SchemeEditMode = true;
    p.state.SchemeEditText = box.Text;
    Thumb_Editor_Show(p);
    box.Text = p.state.SchemeEditText;
}

} // namespace

void Settings_Box_Fill(FrmSettings& form, TextBox& box, const std::string& text)
{
    const bool before = std::exchange(form.Filling, true);
    box.Text = text;
    form.Filling = before;
}

void Settings_Boxes_Clear(Program& p)
{
    FrmSettings& form = p.Settings();
    for (const auto& box : form.txtName)
        Settings_Box_Fill(form, *box, "");
    for (const auto& box : form.txtData)
        Settings_Box_Fill(form, *box, "");
}

void Settings_Boxes_Wire(Program& p, FrmSettings& form)
{
    for (const auto& box : form.txtName)
        Box_Wire(p, form, *box, nameRule);
    for (const auto& box : form.txtData)
        Box_Wire(p, form, *box, dataRules[box->Index()]);
    form.cboMode.Click = [&form] { Mode_Show(form); };
    for (const auto& label : form.lblTmpInsert)
        if (label->Index() > 0)
            label->Click = [&form, text = label->Caption.Get()] { Token_Insert(form, text); };
    form.lblName[pageFavorites].Click = [&form] { Name_FromPath(form); };
    form.lblData[pageSchemes].Click = [&form] {
        form.txtData[pageSchemes].Text = std::string(defaultScheme);
    };
    form.cmdEditScheme.Click = [&p] { Scheme_Edit(p); };
}

} // namespace tavo
