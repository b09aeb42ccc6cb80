#include "window/dialog_person.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/qt_text.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include <utility>

namespace tavo {

void DialogPerson::At(const std::function<void()>& show, std::function<void()> step)
{
    const QPointer<QWidget> before = dialog_;
    InNextOver([this, step = std::move(step)](QWidget& over) {
        dialog_ = &over;
        Wait();
        step();
    });
    show();
    dialog_ = before;
    Wait();
}

void DialogPerson::InNextOver(std::function<void(QWidget&)> step)
{
    auto* waiting = new QTimer(&Window());
    const QPointer<QWidget> now = QApplication::activeModalWidget();
    QObject::connect(waiting, &QTimer::timeout, &Window(), [=, step = std::move(step)] {
        QWidget* over = QApplication::activeModalWidget();
        if (!over || over == now || !over->isVisible())
            return;
        waiting->stop();
        waiting->deleteLater();
        step(*over);
    });
    waiting->start(0);
}

void DialogPerson::AnswerOver(const QString& button)
{
    InNextOver([this, button](QWidget& over) {
        auto& box = dynamic_cast<QMessageBox&>(over);
        BoxTexts.push_back(box.text());
        for (QAbstractButton* one : box.buttons())
            if (one->text().remove('&') == button)
                return QTest::mouseClick(one, Qt::LeftButton);
        qFatal("the box has no such button");
    });
}

void DialogPerson::ClickIn(const std::string& name)
{
    QWidget& widget = In(name);
    ClickAt(widget, widget.rect().center());
}

void DialogPerson::ClickAt(QWidget& widget, const QPoint& place, Qt::KeyboardModifiers held)
{
    if (!widget.isVisible())
        qFatal("%s is out of sight", qPrintable(widget.objectName()));
    QTest::mouseClick(&widget, Qt::LeftButton, held, place);
    Wait();
}

void DialogPerson::KeyIn(Qt::Key key, Qt::KeyboardModifiers held)
{
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus ? focus : dialog_.data(), key, held);
    Wait();
}

void DialogPerson::TypeHere(const QString& text)
{
    for (const QChar letter : text) {
        QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
        Wait();
    }
}

void DialogPerson::Retype(const std::string& box, const QString& text)
{
    ClickIn(box);
    In<QLineEdit>(box).selectAll();
    TypeHere(text);
}

void DialogPerson::Wait()
{
    // The screen in memory activates nothing by itself when a dialog goes.
    if (dialog_ && !QApplication::activeWindow())
        dialog_->activateWindow();
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        if (auto* binder = dialog_ ? dialog_->findChild<Binder*>() : nullptr)
            binder->Queue().Flush();
    }
}

std::string DialogPerson::FocusName()
{
    for (const QWidget* at = QApplication::focusWidget(); at; at = at->parentWidget())
        if (const Control* control = dialog_->findChild<Binder*>()->ControlOf(at))
            return control->FullName();
    return {};
}

std::vector<std::string> DialogPerson::Stops(int count)
{
    std::vector<std::string> stops;
    for (int i = 0; i < count; ++i) {
        stops.push_back(FocusName());
        KeyIn(Qt::Key_Tab);
    }
    return stops;
}

std::vector<std::string> DialogPerson::Nameless(const Form& form)
{
    std::vector<std::string> nameless;
    for (const Control* control : form.Controls()) {
        if (!control->TakesFocus())
            continue;
        const QWidget* widget = dialog_->findChild<Binder*>()->WidgetOf(control);
        const bool hasText = control->MnemonicCaption() && !control->MnemonicCaption()->empty();
        if (!widget || (!hasText && widget->accessibleName().isEmpty()))
            nameless.push_back(control->FullName());
    }
    return nameless;
}

std::vector<std::string> DialogPerson::CutTexts()
{
    std::vector<std::string> cut;
    const auto look = [&](const QWidget& widget, const QString& text) {
        if (widget.isVisible() && !text.isEmpty() && widget.width() < widget.sizeHint().width())
            cut.push_back(FromQt(text));
    };
    for (const QLabel* label : dialog_->findChildren<QLabel*>())
        look(*label, label->text());
    for (const QAbstractButton* button : dialog_->findChildren<QAbstractButton*>())
        look(*button, button->text());
    return cut;
}

} // namespace tavo
