#pragma once

#include "core/frm_main.h"
#include "hosts/qt/qt_host.h"
#include "support/temp_folder.h"

#include <QPointer>
#include <QTest>

#include <string>
#include <vector>

class QAbstractButton;
class QLineEdit;
class QTableView;
class QToolButton;

namespace tavo {

// A person in front of the window of a Tavo that has just been started on a
// folder of its own.
class Person {
public:
    // The files are made in `files/` of the folder, with their names in them.
    Person(std::string_view test, const std::vector<std::string>& files);

    QtHost& Tavo() { return *host_; }
    Program& Running() { return host_->Running(); }
    FrmMain& Main() { return host_->Running().main; }
    MainWindow& Window() { return host_->Window(); }
    const TempFolder& Folder() const { return folder_; }
    std::vector<std::string> Files() const { return folder_.Names("files"); }

    // Lets everything that waits happen.
    void Settle();

    // The widget of a control, by the control's full name.
    template <class Widget>
    Widget& Of(const std::string& name)
    {
        auto* widget = Window().findChild<Widget*>(QString::fromStdString(name));
        if (!widget)
            qFatal("no widget %s", name.c_str());
        return *widget;
    }
    QTableView& Table(const std::string& list);
    // The button of a tool in the bar that is in sight; null when there is none.
    QToolButton* ToolButton(const std::string& id);

    void Press(const std::string& toolId);
    void Click(QWidget& widget);
    void ClickRow(const std::string& list, int position, Qt::KeyboardModifiers held = {});
    void Type(QWidget& widget, const QString& text);
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {});

    // Presses this button of the next message box, and keeps its text.
    void AnswerNext(const QString& button);
    // Does this in the next dialog, once it is up.
    void InNextDialog(std::function<void(QWidget& dialog)> step);
    QStringList BoxTexts;

    std::string Panel(int number) { return Main().stbMain.Panel(number); }
    std::string ShownPanel(int number);
    std::vector<int> Selected(ListView& list);
    std::vector<std::string> Names(ListView& list);

    // Goes to the rename list with all files.
    void RenameAllFiles();

private:
    TempFolder folder_;
    std::unique_ptr<QtHost> host_;
};

} // namespace tavo
