#pragma once

#include "toolkit/panels.h"

#include <string>

namespace tavo {

class Program;

// A label that opens an address by the desktop's opener. It consists of
// lblHyperLink, which shows LinkText and, while LinkTipEcho is on, the address
// as its tip.
class HyperLink : public Control {
public:
    HyperLink(Program& p, Form& form, const std::string& name);

    Property<std::string> LinkText;
    Property<std::string> LinkAddress;
    Property<bool> LinkTipEcho;

    Label lblHyperLink;

    // The label covers it.
    void PersonClick() override { lblHyperLink.PersonClick(); }
    std::optional<std::string> PropertyText(std::string_view property) const override;
    void PropertyChanged(Prop what) override;

private:
    void ShowLink();
    void Open();

    Program& p_;
};

} // namespace tavo
