#include "window/person.h"

#include "hosts/qt/bar_view.h"
#include "hosts/qt/list_page.h"
#include "hosts/qt/parts.h"
#include "hosts/qt/qt_text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTableView>
#include <QTimer>

namespace tavo {

Person::Person(std::string_view test, const std::vector<std::string>& files) : folder_(test)
{
    // Where the test before left the pointer, a tool would tell what it does.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    folder_.MakeFolder("app");
    folder_.MakeFolder("files");
    for (const std::string& name : files)
        folder_.Write("files/" + name, name);
    StartInfo info;
    info.AppFolder = folder_.Path("app/");
    info.CommandText = folder_.Path("files/");
    host_ = std::make_unique<QtHost>(info);
    host_->Start();
    Window().activateWindow();
    if (!QTest::qWaitForWindowActive(&Window()))
        qFatal("the window does not come up");
    Settle();
}

void Person::Settle()
{
    // The screen in memory activates nothing by itself when a dialog goes.
    if (!QApplication::activeWindow())
        Window().activateWindow();
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        Window().Bound().Queue().Flush();
    }
}

QTableView& Person::Table(const std::string& list)
{
    return Of<ListPage>(list).Details();
}

QToolButton* Person::ToolButton(const std::string& id)
{
    for (BarView* bar : Window().findChildren<BarView*>())
        for (QToolButton* button : bar->findChildren<QToolButton*>()) {
            const QAction* action = button->defaultAction();
            if (button->isVisible() && action && action->objectName() == ToQt(id))
                return button;
        }
    return nullptr;
}

void Person::Click(QWidget& widget)
{
    QTest::mouseClick(&widget, Qt::LeftButton);
    Settle();
}

void Person::Press(const std::string& toolId)
{
    QToolButton* button = ToolButton(toolId);
    if (!button)
        qFatal("no button for %s", toolId.c_str());
    Click(*button);
}

void Person::ClickRow(const std::string& list, int position, Qt::KeyboardModifiers held)
{
    QTableView& table = Table(list);
    const QPoint middle = table.visualRect(table.model()->index(position - 1, 0)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, held, middle);
    Settle();
}

void Person::Type(QWidget& widget, const QString& text)
{
    if (!widget.hasFocus())
        Click(widget);
    for (const QChar letter : text) {
        QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
        Settle();
    }
}

void Person::Key(Qt::Key key, Qt::KeyboardModifiers held)
{
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus ? focus : &Window(), key, held);
    Settle();
}

void Person::InNextDialog(std::function<void(QWidget&)> step)
{
    auto* waiting = new QTimer(&Window());
    QObject::connect(waiting, &QTimer::timeout, &Window(), [waiting, step = std::move(step)] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible())
            return;
        waiting->stop();
        waiting->deleteLater();
        step(*dialog);
    });
    waiting->start(0);
}

void Person::AnswerNext(const QString& button)
{
    InNextDialog([this, button](QWidget& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        BoxTexts.push_back(box.text());
        for (QAbstractButton* one : box.buttons())
            if (one->text().remove('&') == button)
                return QTest::mouseClick(one, Qt::LeftButton);
        qFatal("the box has no such button");
    });
}

std::string Person::ShownPanel(int number)
{
    const auto labels = Of<StatusPanels>("stbMain").findChildren<QLabel*>();
    return FromQt(labels.at(number - 1)->text());
}

std::vector<int> Person::Selected(ListView& list)
{
    std::vector<int> rows;
    for (int row = list.NextSelected(0); row > 0; row = list.NextSelected(row))
        rows.push_back(row);
    return rows;
}

std::vector<std::string> Person::Names(ListView& list)
{
    std::vector<std::string> names;
    for (int row = 1; row <= list.Count(); ++row)
        names.emplace_back(list.Text(row));
    return names;
}

void Person::RenameAllFiles()
{
    Table("lsvSelMain").setFocus();
    Key(Qt::Key_A, Qt::ControlModifier);
    Press("ID_CreateList");
}

} // namespace tavo
