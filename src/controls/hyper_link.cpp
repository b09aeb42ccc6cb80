#include "controls/hyper_link.h"

#include "core/program.h"
#include "toolkit/property_table.h"

namespace tavo {

namespace {

constexpr std::string_view homeText = "www.tavo.example";
constexpr std::string_view homeAddress = "https://www.tavo.example/";
constexpr auto linkColour = static_cast<std::int32_t>(0x8000000D);
constexpr int leftButton = 1;

constexpr PropertyRow<HyperLink> properties[] = {
    {"LinkText", [](const HyperLink& l) { return l.LinkText.Get(); }},
    {"LinkAddress", [](const HyperLink& l) { return l.LinkAddress.Get(); }},
    {"LinkTipEcho", [](const HyperLink& l) { return Bool_Text(l.LinkTipEcho); }},
};

} // namespace

HyperLink::HyperLink(Program& p, Form& form, const std::string& name)
    : Control(form, name), LinkText(*this, Prop::Caption, std::string(homeText)),
      LinkAddress(*this, Prop::State, std::string(homeAddress)),
      LinkTipEcho(*this, Prop::State, true), lblHyperLink(form, "lblHyperLink"), p_(p)
{
    lblHyperLink.Container = this;
    lblHyperLink.ForeColor = linkColour;
    lblHyperLink.MouseUp = [this](const Mouse& mouse) {
        if (mouse.Button == leftButton)
            Open();
    };
    ShowLink();
}

std::optional<std::string> HyperLink::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(properties, *this, property);
    return text ? text : Control::PropertyText(property);
}

void HyperLink::PropertyChanged(Prop what)
{
    ShowLink();
    Control::PropertyChanged(what);
}

void HyperLink::ShowLink()
{
    lblHyperLink.Caption = LinkText.Get();
    lblHyperLink.ToolTipText = LinkTipEcho ? LinkAddress.Get() : std::string();
    lblHyperLink.Move(0, 0, Width, Height);
}

void HyperLink::Open()
{
    std::string why;
    bool opened = false;
    {
        const BusyPointer busy(p_);
        opened = p_.desktop.ShellExecuteA("open", LinkAddress, why);
    }
    if (!opened)
        p_.desktop.MsgBox({"Unable to open " + LinkAddress.Get() + " due to: " + why, "Error...",
                           BoxIcon::Information, BoxButtons::Ok, BoxAnswer::Ok});
}

} // namespace tavo
