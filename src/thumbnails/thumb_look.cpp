#include "thumbnails/thumb_look.h"

#include "selection/paths.h"
#include "toolkit/numbers.h"

namespace tavo {

namespace {

// The record's fields in turn, with those of the default scheme behind them.
class Fields {
public:
    explicit Fields(const std::string& record) : rest_(record) {}

    template <class Number>
    void Take(Number& number)
    {
        const std::string fallback = Str_GetToken(defaults_, ",", "");
        AssignChecked(number, Val(Str_GetToken(rest_, ",", fallback)));
    }

private:
    std::string rest_, defaults_{defaultScheme};
};

void Sum_Take(std::int16_t& sum, int picture, const ThumbLook& look)
{
    AssignChecked(sum, picture + 2 * look.BorderWidth + look.Margin);
}

} // namespace

void Cell_Measure(ThumbLook& look)
{
    Sum_Take(look.CellWidth, look.Width, look);
    Sum_Take(look.CellHeight, look.Height, look);
}

void Scheme_Take(ThumbLook& look, const std::string& record)
{
    Fields fields(record);
    for (std::int16_t* size : {&look.Height, &look.Width, &look.BorderWidth})
        fields.Take(*size);
    Cell_Measure(look);
    for (const int color : {thumbBackground, thumbSelectedBorder, thumbNormalBorder})
        fields.Take(look.Color[static_cast<std::size_t>(color)]);
    fields.Take(look.Align);
    for (const int color : {thumbCaptionBackground, thumbCaptionText, thumbWindow})
        fields.Take(look.Color[static_cast<std::size_t>(color)]);
}

PixelSize Thumb_Fit(const ThumbLook& look, int sourceWidth, int sourceHeight)
{
    if (sourceWidth < 1 || sourceHeight < 1)
        return {};
    const double byHeight = static_cast<double>(look.Height) / sourceHeight;
    const double byWidth = static_cast<double>(look.Width) / sourceWidth;
    if (byHeight < byWidth)
        return {static_cast<int>(sourceWidth * byHeight), look.Height};
    return {look.Width, static_cast<int>(sourceHeight * byWidth)};
}

} // namespace tavo
