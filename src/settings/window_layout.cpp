#include "settings/window_layout.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "selection/paths.h"
#include "toolkit/numbers.h"
#include "viewer/frm_viewer.h"

#include <cmath>
#include <cstdint>

namespace tavo {

namespace {

// What a record says where its state fields are missing.
constexpr std::string_view stateAsItIs = "3";

std::string Field_Text(double twips)
{
    return SingleToText(static_cast<float>(twips));
}

struct Place {
    double Left = 0, Top = 0, Width = 0, Height = 0, State = 0;
};

// The numeric prefix of the field; 0 for what no window can have.
double Field_Take(std::string& record, std::string_view fallback)
{
    const double number = Val(Str_GetToken(record, ",", fallback));
    return std::abs(number) <= INT32_MAX ? number : 0;
}

Place Place_Take(std::string& record)
{
    Place place;
    for (double* field : {&place.Left, &place.Top, &place.Width, &place.Height})
        *field = Field_Take(record, "0");
    place.State = Field_Take(record, stateAsItIs);
    return place;
}

// A state that is none of the three a window can have leaves it alone.
void Place_Apply(Form& form, const Place& place)
{
    if (place.State == 0 && place.Width >= 1 && place.Height >= 1)
        form.Move(place.Left, place.Top, place.Width, place.Height);
    for (const auto state : {WindowState::Normal, WindowState::Minimised, WindowState::Maximised})
        if (place.State == static_cast<int>(state))
            form.SetState(state);
}

std::string Place_Text(const Form* form)
{
    if (!form || !form->Visible())
        return std::string(nowhereRecord);
    if (form->State() == WindowState::Normal)
        return Pos_Text(*form);
    return "0,0,0,0," + IntToText(static_cast<int>(form->State()));
}

} // namespace

std::string Pos_Text(const Form& form)
{
    std::string text;
    for (const double twips : {form.Left(), form.Top(), form.Width(), form.Height()})
        text += Field_Text(twips) + ',';
    return text + IntToText(static_cast<int>(form.State()));
}

std::string Pos_Text(const WindowPos& pos)
{
    std::string text;
    for (const std::int32_t twips : {pos.Left, pos.Top, pos.Width, pos.Height})
        text += Field_Text(twips) + ',';
    return text + IntToText(pos.State);
}

void Win_Layout_Apply(Program& p, const std::string& record)
{
    std::string rest = record;
    Place_Apply(p.main, Place_Take(rest));
    if (FrmViewer* viewer = p.ViewerInSight())
        Place_Apply(*viewer, Place_Take(rest));
}

std::string Win_Layout_Text(Program& p)
{
    return Place_Text(&p.main) + "," + Place_Text(p.ViewerInSight());
}

} // namespace tavo
