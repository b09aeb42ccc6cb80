#pragma once

namespace tavo {

class FrmSettings;
class Program;

// The word list of Smart Case on the page of the options, on p.Settings().
void CaseWords_Wire(Program& p, FrmSettings& form);
void CaseWords_Fill(Program& p);
// Makes CaseWordList anew from the list.
void CaseWords_Read(Program& p);

} // namespace tavo
