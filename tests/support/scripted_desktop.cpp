#include "support/scripted_desktop.h"

#include "toolkit/form.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace tavo {

namespace {

std::vector<BoxAnswer> Buttons_Of(const MessageBox& box)
{
    switch (box.Buttons) {
    case BoxButtons::OkCancel: return {BoxAnswer::Ok, BoxAnswer::Cancel};
    case BoxButtons::YesNo: return {BoxAnswer::Yes, BoxAnswer::No};
    default: return {BoxAnswer::Ok};
    }
}

bool HasButton(const MessageBox& box, BoxAnswer answer)
{
    const auto buttons = Buttons_Of(box);
    return std::find(buttons.begin(), buttons.end(), answer) != buttons.end();
}

// The button that Return presses.
BoxAnswer Default_Of(const MessageBox& box)
{
    return HasButton(box, box.Default) ? box.Default : Buttons_Of(box).front();
}

} // namespace

void ScriptedDesktop::At(int turn, Step step)
{
    steps_.emplace(turn, std::move(step));
}

void ScriptedDesktop::DoEvents()
{
    const int turn = ++turns_;
    if (turn > MostTurns) {
        std::fprintf(stderr, "The program has waited for %d turns.\n", MostTurns);
        std::abort();
    }
    // A step may add others, for this very turn too.
    for (auto next = steps_.find(turn); next != steps_.end(); next = steps_.find(turn)) {
        const Step step = std::move(next->second);
        steps_.erase(next);
        step();
    }
    if (!EachTurn || insideEachTurn_)
        return;
    insideEachTurn_ = true;
    EachTurn(turn);
    insideEachTurn_ = false;
}

BoxAnswer ScriptedDesktop::NextAnswer(const MessageBox& box)
{
    if (answers_.empty())
        return Default_Of(box);
    const BoxAnswer answer = answers_.front();
    answers_.pop_front();
    if (HasButton(box, answer))
        return answer;
    ADD_FAILURE() << "The box has no such button: " << box.Text;
    return Default_Of(box);
}

BoxAnswer ScriptedDesktop::MsgBox(const MessageBox& box)
{
    const BoxAnswer answer = NextAnswer(box);
    Boxes.push_back({box, answer});
    return answer;
}

std::vector<std::string> ScriptedDesktop::BoxTexts() const
{
    std::vector<std::string> texts;
    for (const BoxShown& shown : Boxes)
        texts.push_back(shown.Box.Text);
    return texts;
}

void ScriptedDesktop::Show(Form& form)
{
    Forms.push_back({form.Name(), false});
    form.EnsureLoaded();
    form.SetVisible(true);
}

void ScriptedDesktop::ShowModal(Form& form)
{
    Forms.push_back({form.Name(), true});
    form.EnsureLoaded();
    form.SetVisible(true);
    if (modalSteps_.empty()) {
        ADD_FAILURE() << "Nobody expected the form " << form.Name();
        form.Unload();
        return;
    }
    const FormStep step = std::move(modalSteps_.front());
    modalSteps_.pop_front();
    step(form);
    if (!form.Loaded())
        return;
    ADD_FAILURE() << "The form is still there: " << form.Name();
    form.Unload();
}

void ScriptedDesktop::SetForegroundWindow(Form& form)
{
    Foregrounds.push_back(form.Name());
}

void ScriptedDesktop::PopUpMenu(Tool& menu, int xTwips, int yTwips)
{
    PopUps.push_back({&menu, xTwips, yTwips});
    if (OnPopUp)
        OnPopUp(menu);
}

std::optional<std::string> ScriptedDesktop::SHBrowseForFolderA(const std::string& title)
{
    FolderTitles.push_back(title);
    return FolderChoice;
}

bool ScriptedDesktop::ShellExecuteA(const std::string& verb, const std::string& address,
                                    std::string& why)
{
    Executions.push_back({verb, address});
    if (ShellRefusal.empty())
        return true;
    why = ShellRefusal;
    return false;
}

BitmapPtr ScriptedDesktop::LoadPicture(const std::string& path, PictureBound)
{
    PictureWishes.push_back(path);
    const auto picture = Pictures.find(path);
    if (picture == Pictures.end())
        return nullptr;
    return std::make_shared<Bitmap>(picture->second.Width, picture->second.Height);
}

BitmapPtr ScriptedDesktop::PaintPicture(const Bitmap&, int widthPixels, int heightPixels)
{
    Paintings.push_back({widthPixels, heightPixels});
    return std::make_shared<Bitmap>(widthPixels, heightPixels);
}

void ScriptedDesktop::DragFiles(Control& source, const std::vector<std::string>& paths)
{
    Drags.push_back({&source, paths});
    if (OnDrag)
        OnDrag();
}

} // namespace tavo
