#include "settings/settings_words.h"

#include "core/program.h"
#include "renamelist/preview.h"
#include "settings/frm_settings.h"
#include "settings/settings_pages.h"
#include "toolkit/text.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr std::size_t wordList = 0; // in ListDirty

// Two words that differ in case alone may both stand in the list.
void Word_Add(Program& p)
{
    FrmSettings& form = p.Settings();
    const std::string word = Trim(Settings_Line(form.txtCaseWord.Text));
    const auto& words = form.lstCaseWord.Items();
    if (word.empty()) {
        p.Say("There is no Word to Add!", BoxIcon::Exclamation);
        return;
    }
    if (std::find(words.begin(), words.end(), word) != words.end()) {
        p.Say("That Word is Already in the List!", BoxIcon::Exclamation);
        return;
    }
    form.lstCaseWord.AddItem(word);
    form.cmdCWRemove.Enabled = true;
    form.ListDirty[wordList] = true;
}

void Word_Remove(FrmSettings& form)
{
    if (!form.lstCaseWord.RemoveItem(form.lstCaseWord.ListIndex()))
        return;
    form.ListDirty[wordList] = true;
    form.cmdCWRemove.Enabled = form.lstCaseWord.ListCount() > 0;
}

void Word_Take(FrmSettings& form)
{
    form.txtCaseWord.Text = form.lstCaseWord.Text();
    form.cmdCWRemove.Enabled = true;
}

void Box_Return(Program& p, Key& key)
{
    if (key.Code != keyReturn || key.Shift != shiftNone)
        return;
    key.Code = keyNone;
    Word_Add(p);
    Box_SelectAll(p.Settings().txtCaseWord);
}

} // namespace

void CaseWords_Wire(Program& p, FrmSettings& form)
{
    form.cmdCWAdd.Click = [&p] { Word_Add(p); };
    form.cmdCWRemove.Click = [&form] { Word_Remove(form); };
    form.lstCaseWord.Click = [&form] { Word_Take(form); };
    form.txtCaseWord.KeyDown = [&p](Key& key) { Box_Return(p, key); };
}

void CaseWords_Fill(Program& p)
{
    FrmSettings& form = p.Settings();
    form.txtCaseWord.Text = "";
    form.lstCaseWord.Clear();
    const auto& words = p.state.CaseWordList;
    for (std::size_t i = 1; i < words.size(); ++i)
        form.lstCaseWord.AddItem(words[i]);
    form.cmdCWRemove.Enabled = false;
}

void CaseWords_Read(Program& p)
{
    const auto& words = p.Settings().lstCaseWord.Items();
    p.state.CaseWordList.assign(1, "");
    p.state.CaseWordList.insert(p.state.CaseWordList.end(), words.begin(), words.end());
}

} // namespace tavo
