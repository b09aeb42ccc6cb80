#include "hosts/console/console_desktop.h"

#include "hosts/console/session.h"
#include "hosts/pictures/picture_reader.h"
#include "toolkit/form.h"
#include "toolkit/list_view.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <utility>

namespace tavo::console {

namespace {

constexpr double screenWidthPixels = 1920, screenHeightPixels = 1080;

constexpr std::array<BoxAnswer, 4> allAnswers{BoxAnswer::Ok, BoxAnswer::Cancel, BoxAnswer::Yes,
                                              BoxAnswer::No};

bool Box_Offers(const MessageBox& box, BoxAnswer answer)
{
    switch (box.Buttons) {
    case BoxButtons::Ok: return answer == BoxAnswer::Ok;
    case BoxButtons::OkCancel: return answer == BoxAnswer::Ok || answer == BoxAnswer::Cancel;
    case BoxButtons::YesNo: return answer == BoxAnswer::Yes || answer == BoxAnswer::No;
    }
    return false;
}

// False for a word that this box has no button for.
bool Answer_Read(const MessageBox& box, const std::string& word, BoxAnswer& answer)
{
    for (const BoxAnswer one : allAnswers)
        if (Answer_Name(one) == word && Box_Offers(box, one)) {
            answer = one;
            return true;
        }
    return false;
}

} // namespace

std::string Answer_Name(BoxAnswer answer)
{
    static constexpr std::array<const char*, 4> names{"OK", "Cancel", "Yes", "No"};
    return names[static_cast<std::size_t>(answer)];
}

std::string Buttons_Name(BoxButtons buttons)
{
    static constexpr std::array<const char*, 3> names{"OK", "OK,Cancel", "Yes,No"};
    return names[static_cast<std::size_t>(buttons)];
}

std::string Icon_Name(BoxIcon icon)
{
    static constexpr std::array<const char*, 5> names{"none", "critical", "question", "exclamation",
                                                      "information"};
    return names[static_cast<std::size_t>(icon)];
}

void ConsoleDesktop::DoEvents()
{
    if (session_)
        session_->PumpTurn();
}

BoxAnswer ConsoleDesktop::MsgBox(const MessageBox& box)
{
    BoxAnswer answer = box.Default;
    if (!Answers.empty()) {
        const Answer next = Answers.front();
        Answers.pop_front();
        if (!Answer_Read(box, next.Word, answer) && session_)
            session_->Report("the box \"" + box.Text + "\" offers no " + next.Word);
    } else if (session_ && session_->IsTerminal()) {
        Answer_Read(box, session_->Ask(box.Text + " (" + Buttons_Name(box.Buttons) + ") "), answer);
    }
    Boxes.push_back({box, answer});
    return answer;
}

const std::vector<Form*>& ConsoleDesktop::Forms()
{
    std::erase_if(forms_, [](const Form* form) { return !form->Visible(); });
    return forms_;
}

Form* ConsoleDesktop::Front()
{
    return Forms().empty() ? nullptr : forms_.back();
}

void ConsoleDesktop::BringToFront(Form& form)
{
    std::erase(forms_, &form);
    forms_.push_back(&form);
    FollowFront();
}

void ConsoleDesktop::FollowFront()
{
    Form* const front = Front();
    Form* const before = std::exchange(active_, front);
    if (before == front)
        return;
    if (before)
        before->PersonActivate(false);
    // To be left may have brought up another one.
    if (front && front == active_)
        front->PersonActivate(true);
}

void ConsoleDesktop::Show(Form& form)
{
    form.EnsureLoaded();
    form.SetVisible(true);
    BringToFront(form);
}

void ConsoleDesktop::ShowModal(Form& form)
{
    Show(form);
    if (session_)
        session_->ModalLoop(form);
    FollowFront();
}

void ConsoleDesktop::SetForegroundWindow(Form& form)
{
    if (form.Visible())
        BringToFront(form);
}

void ConsoleDesktop::PopUpMenu(Tool&, int, int)
{
    // A menu of the console is always open: its tools are clicked by name.
}

std::optional<std::string> ConsoleDesktop::Path_Ask(const std::string& title)
{
    if (!Answers.empty()) {
        const Answer next = Answers.front();
        Answers.pop_front();
        if (next.Word == "path")
            return next.Path;
        if (next.Word != "Cancel" && session_)
            session_->Report("the dialog \"" + title + "\" offers no " + next.Word);
    } else if (session_ && session_->IsTerminal()) {
        const std::string path = session_->Ask(title + " ");
        if (!path.empty())
            return path;
    }
    return std::nullopt;
}

std::optional<std::string> ConsoleDesktop::SHBrowseForFolderA(const std::string& title)
{
    return Path_Ask(title);
}

std::optional<std::string> ConsoleDesktop::GetSaveFileNameA(const SaveQuestion& question)
{
    return Path_Ask(question.Title);
}

double ConsoleDesktop::ScreenWidth() const
{
    return screenWidthPixels * TwipsPerPixel();
}

double ConsoleDesktop::ScreenHeight() const
{
    return screenHeightPixels * TwipsPerPixel();
}

bool ConsoleDesktop::ShellExecuteA(const std::string& verb, const std::string& address,
                                   std::string&)
{
    OpenedNow.push_back({verb, address});
    return true;
}

BitmapPtr ConsoleDesktop::LoadPicture(const std::string& path, PictureBound bound)
{
    return pictures::Bitmap_Load(path, bound.WidthPixels, bound.HeightPixels);
}

BitmapPtr ConsoleDesktop::PaintPicture(const Bitmap& picture, int widthPixels, int heightPixels)
{
    return pictures::Bitmap_Paint(picture, widthPixels, heightPixels);
}

SystemTime ConsoleDesktop::Now()
{
    const std::time_t now = std::time(nullptr);
    const std::tm* const local = std::localtime(&now);
    SystemTime time;
    if (local == nullptr)
        return time;
    time.Year = local->tm_year + 1900;
    time.Month = local->tm_mon + 1;
    time.DayOfWeek = local->tm_wday;
    time.Day = local->tm_mday;
    time.Hour = local->tm_hour;
    time.Minute = local->tm_min;
    time.Second = local->tm_sec;
    return time;
}

void ConsoleDesktop::DragFiles(Control&, const std::vector<std::string>& paths)
{
    Dragged = paths;
    if (auto* const list = dynamic_cast<ListView*>(DropTarget))
        list->FilesDropped(paths);
}

} // namespace tavo::console
