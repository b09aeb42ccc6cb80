#include "hosts/qt/qt_desktop.h"

#include "hosts/pictures/image_bitmap.h"
#include "hosts/qt/binder.h"
#include "hosts/qt/qt_text.h"
#include "platform/posix/start_info.h"
#include "toolkit/form.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QDialog>
#include <QDrag>
#include <QEventLoop>
#include <QFileDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <QUrl>

#include <utility>

namespace tavo {

namespace {

// The window stays as lively as a person can tell, and a fast run as fast.
constexpr int turnMs = 10;

struct IconRow {
    BoxIcon Ours;
    QMessageBox::Icon Qt;
};

constexpr IconRow icons[] = {
    {BoxIcon::None, QMessageBox::NoIcon},
    {BoxIcon::Critical, QMessageBox::Critical},
    {BoxIcon::Question, QMessageBox::Question},
    {BoxIcon::Exclamation, QMessageBox::Warning},
    {BoxIcon::Information, QMessageBox::Information},
};

struct ButtonRow {
    BoxButtons In;
    BoxAnswer Answer;
    QMessageBox::StandardButton Qt;
};

constexpr ButtonRow buttons[] = {
    {BoxButtons::Ok, BoxAnswer::Ok, QMessageBox::Ok},
    {BoxButtons::OkCancel, BoxAnswer::Ok, QMessageBox::Ok},
    {BoxButtons::OkCancel, BoxAnswer::Cancel, QMessageBox::Cancel},
    {BoxButtons::YesNo, BoxAnswer::Yes, QMessageBox::Yes},
    {BoxButtons::YesNo, BoxAnswer::No, QMessageBox::No},
};

double DotsPerPixel()
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen ? screen->devicePixelRatio() : 1;
}

// What the box gives when it is closed without a choice.
BoxAnswer Closed_Answer(const MessageBox& box)
{
    switch (box.Buttons) {
    case BoxButtons::OkCancel: return BoxAnswer::Cancel;
    case BoxButtons::YesNo: return BoxAnswer::No;
    default: return BoxAnswer::Ok;
    }
}

void Fill(QMessageBox& shown, const MessageBox& box)
{
    shown.setTextFormat(Qt::PlainText);
    shown.setText(ToQt(box.Text));
    shown.setWindowTitle(ToQt(box.Caption));
    for (const IconRow& row : icons)
        if (row.Ours == box.Icon)
            shown.setIcon(row.Qt);
    for (const ButtonRow& row : buttons) {
        if (row.In != box.Buttons)
            continue;
        QPushButton* button = shown.addButton(row.Qt);
        if (row.Answer == box.Default || !shown.defaultButton())
            shown.setDefaultButton(button);
        if (row.Answer == Closed_Answer(box))
            shown.setEscapeButton(button);
    }
}

// What the program has changed is in the window before it comes up.
void Flush(const QWidget& window)
{
    if (auto* binder = window.findChild<Binder*>(QString(), Qt::FindDirectChildrenOnly))
        binder->Queue().Flush();
}

BoxAnswer Answer_Of(const MessageBox& box, QMessageBox::StandardButton pressed)
{
    for (const ButtonRow& row : buttons)
        if (row.In == box.Buttons && row.Qt == pressed)
            return row.Answer;
    return Closed_Answer(box);
}

} // namespace

void QtDesktop::AddWindow(Form& form, QWidget& window)
{
    windows_[&form] = &window;
}

void QtDesktop::AddWindow(const std::string& formName, WindowMaker make)
{
    windowMakers_[formName] = std::move(make);
}

void QtDesktop::AddDialog(const std::string& formName, DialogMaker make)
{
    dialogs_[formName] = std::move(make);
}

bool QtDesktop::TurnIsDue()
{
    return !sinceTurn_.isValid() || sinceTurn_.elapsed() >= turnMs;
}

void QtDesktop::DoEvents()
{
    const bool paused = IsPaused && IsPaused();
    if (!paused && !TurnIsDue())
        return;
    const QScopedValueRollback<int> inside(inside_, inside_ + 1);
    if (paused) {
        // Waits for the person, but looks again soon: a handler that runs
        // above this one may end the pause without any event.
        QTimer soon;
        soon.start(turnMs);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    } else {
        QCoreApplication::processEvents();
    }
    sinceTurn_.start();
}

void QtDesktop::StillAlive()
{
    if (!TurnIsDue())
        return;
    const QScopedValueRollback<int> inside(inside_, inside_ + 1);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    sinceTurn_.start();
}

QWidget* QtDesktop::FrontWindow() const
{
    if (QWidget* active = QApplication::activeModalWidget())
        return active;
    if (QWidget* active = QApplication::activeWindow())
        return active;
    for (const auto& [form, window] : windows_)
        if (window && window->isVisible())
            return window;
    return nullptr;
}

BoxAnswer QtDesktop::MsgBox(const MessageBox& box)
{
    const QScopedValueRollback<int> inside(inside_, inside_ + 1);
    if (BeforeShowing)
        BeforeShowing();
    // What the pointer says of the program is not true of the box.
    const bool busy = busyPointer_;
    SetPointer(Pointer::Default);
    QMessageBox shown(FrontWindow());
    Fill(shown, box);
    shown.exec();
    SetPointer(busy ? Pointer::Busy : Pointer::Default);
    return Answer_Of(box, shown.standardButton(shown.clickedButton()));
}

// Null for a form that no window is known for.
QWidget* QtDesktop::WindowOf(Form& form)
{
    QPointer<QWidget>& window = windows_[&form];
    const auto make = windowMakers_.find(form.Name());
    if (!window && make != windowMakers_.end())
        window = make->second(form);
    return window;
}

// The window comes first: as the form loads it lays out, and must know what
// room there is.
void QtDesktop::Show(Form& form)
{
    QWidget* window = WindowOf(form);
    form.EnsureLoaded();
    if (!form.Loaded() || !window)
        return;
    form.SetVisible(true);
    if (BeforeShowing)
        BeforeShowing();
    Flush(*window);
    const bool wasUp = window->isVisible();
    window->show();
    if (wasUp)
        SetForegroundWindow(form);
}

void QtDesktop::ShowModal(Form& form)
{
    const auto make = dialogs_.find(form.Name());
    if (make == dialogs_.end())
        return;
    const QScopedValueRollback<int> inside(inside_, inside_ + 1);
    if (BeforeShowing)
        BeforeShowing();
    const auto dialog = make->second(form, FrontWindow());
    form.EnsureLoaded();
    if (form.Loaded())
        RunDialog(form, *dialog);
}

// Until the form is gone, which may be while it is coming up. Not every desktop
// activates a dialog, but its form must hear that it is up, and the one below
// that it is in front again. A dialog that was put away past its form takes the
// form along, if that lets itself.
void QtDesktop::RunDialog(Form& form, QDialog& dialog)
{
    Form* const below = std::exchange(modal_, &form);
    if (below)
        below->PersonActivate(false);
    QEventLoop loop;
    const Connection gone = form.Unloaded.Listen([&loop] { loop.quit(); });
    QObject::connect(&dialog, &QDialog::finished, &loop, [&form, &dialog] {
        form.Unload();
        if (form.Loaded())
            dialog.show();
    });
    QTimer::singleShot(0, &dialog, [&form, &dialog] {
        if (dialog.isVisible())
            form.PersonActivate(true);
    });
    form.SetVisible(true);
    Flush(dialog);
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    if (form.Loaded())
        loop.exec(QEventLoop::DialogExec);
    modal_ = below;
    if (below && below->Loaded())
        below->PersonActivate(true);
}

void QtDesktop::SetForegroundWindow(Form& form)
{
    const auto window = windows_.find(&form);
    if (window == windows_.end() || !window->second)
        return;
    window->second->raise();
    window->second->activateWindow();
}

void QtDesktop::PopUpMenu(Tool& menu, int xTwips, int yTwips)
{
    if (OnPopUp)
        OnPopUp(menu, xTwips, yTwips);
}

void QtDesktop::SetPointer(Pointer pointer)
{
    const bool busy = pointer == Pointer::Busy;
    if (busy == busyPointer_)
        return;
    busyPointer_ = busy;
    if (busy)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

double QtDesktop::ScreenWidth() const
{
    return QGuiApplication::primaryScreen()->size().width() * twipsPerPixel;
}

double QtDesktop::ScreenHeight() const
{
    return QGuiApplication::primaryScreen()->size().height() * twipsPerPixel;
}

std::string QtDesktop::ClipboardText()
{
    return FromQt(QGuiApplication::clipboard()->text());
}

void QtDesktop::SetClipboardText(const std::string& text)
{
    QGuiApplication::clipboard()->setText(ToQt(text));
}

std::optional<std::string> QtDesktop::SHBrowseForFolderA(const std::string& title)
{
    if (!OnBrowse)
        return std::nullopt;
    const QScopedValueRollback<int> inside(inside_, inside_ + 1);
    if (BeforeShowing)
        BeforeShowing();
    return OnBrowse(title, FrontWindow());
}

std::optional<std::string> QtDesktop::GetSaveFileNameA(const SaveQuestion& question)
{
    const QScopedValueRollback<int> inside(inside_, inside_ + 1);
    if (BeforeShowing)
        BeforeShowing();
    const std::string kind = question.Filter.substr(0, question.Filter.find('\0'));
    QFileDialog dialog(FrontWindow(), ToQt(question.Title), QString(), ToQt(kind));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    const std::string& extension = question.DefaultExtension;
    dialog.setDefaultSuffix(ToQt(extension.substr(extension.rfind('.') + 1)));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return FromQt(dialog.selectedFiles().first());
}

bool QtDesktop::ShellExecuteA(const std::string&, const std::string& address, std::string& why)
{
    const bool path = address.starts_with('/');
    if (path && !files_.Exists(address)) {
        why = "There is no file " + address;
        return false;
    }
    const std::string url = path ? Path_ToFileUrl(address) : address;
    if (QDesktopServices::openUrl(QUrl::fromEncoded(QByteArray::fromStdString(url))))
        return true;
    why = "The desktop has no program that opens " + address;
    return false;
}

BitmapPtr QtDesktop::LoadPicture(const std::string& path, PictureBound bound)
{
    return pictures::Bitmap_Load(path, {bound.WidthPixels, bound.HeightPixels}, DotsPerPixel());
}

BitmapPtr QtDesktop::PaintPicture(const Bitmap& picture, int widthPixels, int heightPixels)
{
    return pictures::Bitmap_Paint(picture, {widthPixels, heightPixels}, DotsPerPixel());
}

SystemTime QtDesktop::Now()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(), date.month(),  date.dayOfWeek() % 7, date.day(),
            time.hour(), time.minute(), time.second(),        time.msec()};
}

void QtDesktop::DragFiles(Control& source, const std::vector<std::string>& paths)
{
    const auto window = windows_.find(&source.Owner());
    if (window == windows_.end() || !window->second)
        return;
    const QScopedValueRollback<int> inside(inside_, inside_ + 1);
    auto* widget = window->second->findChild<QWidget*>(ToQt(source.FullName()));
    auto* files = new QMimeData;
    files->setData("text/uri-list", UriList_Of(paths));
    auto* drag = new QDrag(widget ? widget : window->second.data());
    drag->setMimeData(files);
    drag->exec(Qt::CopyAction);
}

} // namespace tavo
