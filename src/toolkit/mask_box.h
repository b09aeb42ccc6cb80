#pragma once

#include "toolkit/text_box.h"

namespace tavo {

// A box whose text has a fixed pattern: in the mask `#` is a place for a digit
// and `?` one for a letter, every other sign stands fixed. An empty place shows
// the prompt sign. A person's key goes into the next place behind the caret and
// takes the place of what stands there; fixed signs are passed over. A text put
// in as a whole is spread over the places: a fixed sign in it goes on to the
// next one of the mask, and what fits nowhere is left out. Without a mask it
// is a plain box.
class MaskBox : public TextBox {
public:
    using TextBox::TextBox;

    static constexpr char Prompt = '_';

    const std::string& Mask() const { return mask_; }
    // Empties the box.
    void SetMask(const std::string& mask);

    void PersonText(const std::string& text) override;
    std::optional<std::string> PropertyText(std::string_view property) const override;
    void PropertyChanged(Prop what) override;

protected:
    void Insert(const std::string& text, Edit edit) override;
    void Erase(bool forward) override;

private:
    bool IsPlace(std::size_t at) const;
    bool Fits(std::size_t at, char sign) const;
    // Moves on to the next place, if there is one.
    std::size_t PlaceFrom(std::size_t at) const;
    bool Take(std::string& whole, std::size_t& at, char sign) const;
    // Puts the text into `whole` from `at` on, which ends behind it. False when
    // nothing of it fits.
    bool Spread(std::string& whole, std::size_t& at, std::string_view text) const;
    std::string Emptied(std::string whole, std::size_t from, std::size_t count) const;
    std::string Fitted(std::string_view text) const;

    std::string mask_;
};

} // namespace tavo
