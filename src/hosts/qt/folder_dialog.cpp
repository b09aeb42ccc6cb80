#include "hosts/qt/folder_dialog.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/folder_view.h"
#include "hosts/qt/form_window.h"
#include "hosts/qt/panel_parts.h"
#include "hosts/qt/person_input.h"
#include "hosts/qt/qt_text.h"

#include <QBoxLayout>
#include <QDialog>
#include <QPushButton>

#include <algorithm>

namespace tavo {

namespace {

constexpr int widthChars = 60, heightLines = 24;

// What the dialog shows, by itself.
class FolderForm : public Form {
public:
    FolderForm() : Form("frmFolder")
    {
        DefaultButton = &cmdOk;
        CancelButton = &cmdCancel;
        cmdOk.Caption = "OK";
        cmdCancel.Caption = "Cancel";
        ftvFolders.AccessibleName = "Folders";
        ftvFolders.FolderClick = [this](const std::string&) { cmdOk.Enabled = true; };
        cmdOk.Enabled = false; // until there is a folder in hand
        cmdOk.Click = [this] {
            Chosen = ftvFolders.Folder();
            Unload();
        };
        cmdCancel.Click = [this] { Unload(); };
    }

    // Goes to the first of these that is a folder.
    void Begin(const std::vector<std::string>& starts)
    {
        const bool reached = std::ranges::any_of(starts, [&](const std::string& path) {
            return !path.empty() && ftvFolders.SetFolder(path);
        });
        if (reached)
            ftvFolders.ExpandFolder();
        ftvFolders.SetFocus();
    }

    FolderTree ftvFolders{*this, "ftvFolders"};
    CommandButton cmdOk{*this, "cmdOk"}, cmdCancel{*this, "cmdCancel"};
    std::optional<std::string> Chosen;
};

class FolderDialog : public QDialog {
public:
    FolderDialog(FolderForm& form, QWidget* owner) : QDialog(owner)
    {
        auto* binder = new Binder(form, *this);
        auto* column = new QVBoxLayout(this);
        auto* tree = new FolderView(form.ftvFolders, *binder, this);
        column->addWidget(tree);
        column->addLayout(Buttons(form, *binder));
        form.Move(0, 0, widthChars * fontMetrics().averageCharWidth() * twipsPerPixel,
                  heightLines * fontMetrics().height() * twipsPerPixel);
        new FormWindow(form, *this, binder->Queue());
        new PersonInput(*binder);
        tree->setFocus();
        binder->Queue().Flush();
    }

private:
    QHBoxLayout* Buttons(FolderForm& form, Binder& binder)
    {
        auto* row = new QHBoxLayout;
        row->addStretch();
        for (CommandButton* command : {&form.cmdOk, &form.cmdCancel}) {
            auto* button = Bound<QPushButton>(this, *command, binder);
            button->setAutoDefault(false);
            button->setDefault(command == form.DefaultButton);
            row->addWidget(button);
        }
        return row;
    }
};

} // namespace

std::optional<std::string> Folder_Choose(const FolderSource& source,
                                         const std::vector<std::string>& starts,
                                         const QString& title, QWidget* owner)
{
    FolderForm form; // outlives the widgets that show it
    form.SetCaption(FromQt(title));
    form.ftvFolders.Source = source;
    form.Begin(starts);
    FolderDialog dialog(form, owner);
    form.EnsureLoaded();
    form.SetVisible(true);
    // The node in hand has a place in sight only once the tree is laid out.
    QMetaObject::invokeMethod(
        &dialog, [&form] { form.ftvFolders.EnsureVisible(); }, Qt::QueuedConnection);
    dialog.exec();
    return form.Chosen;
}

} // namespace tavo
