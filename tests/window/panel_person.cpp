#include "window/panel_person.h"

#include "toolkit/combo_box.h"

namespace tavo {

PanelPerson::PanelPerson(std::string_view test, RenameMode mode,
                         const std::vector<std::string>& files)
    : Person(test, files)
{
    RenameAllFiles();
    Goto(mode);
}

void PanelPerson::Goto(int mode)
{
    Main().atbMain.Find("ID_RenameList")->Combo()->PersonChoose(mode);
    Settle();
}

void PanelPerson::Run(const std::string& toolId)
{
    AnswerNext("OK");
    Press(toolId);
    Key(Qt::Key_Return);
}

} // namespace tavo
