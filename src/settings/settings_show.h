#pragma once

#include <string>

// How a value just read reaches its controls (Show), and where the text to be
// saved comes from when no variable holds it (Take). Each Show takes the text
// as read; the variable behind it is already set.
namespace tavo {

class Program;

void Show_Path(Program& p, const std::string& text);
void Show_RenMode(Program& p, const std::string& text);
void Show_ThumbCaption(Program& p, const std::string& text);
void Show_Address(Program& p, const std::string& text);
void Show_TextLabels(Program& p, const std::string& text);
void Show_SelPreview(Program& p, const std::string& text);
void Show_CaseMode(Program& p, const std::string& text);
void Show_CaseFirst(Program& p, const std::string& text);
void Show_CaseWord(Program& p, const std::string& text);
// Box `Index` of the letters that precede capitals.
template <int Index>
void Show_CaseTemp(Program& p, const std::string& text);
void Show_CounterStyle(Program& p, const std::string& text);
void Show_CounterStart(Program& p, const std::string& text);
void Show_CounterDigits(Program& p, const std::string& text);
void Show_TemplateDefault(Program& p, const std::string& text);
void Show_TemplateOnFill(Program& p, const std::string& text);
void Show_AutoFill(Program& p, const std::string& text);
void Show_SearchMode(Program& p, const std::string& text);
void Show_SearchCase(Program& p, const std::string& text);
void Show_SearchType(Program& p, const std::string& text);
void Show_TimeChecks(Program& p, const std::string& text);
void Show_MoveMode(Program& p, const std::string& text);
void Show_Distance(Program& p, const std::string& text);
void Show_View(Program& p, const std::string& text);

// The folder of the selection screen, with its separator at the end.
std::string Take_Path(Program& p);
std::string Take_Distance(Program& p);

} // namespace tavo
