#pragma once

#include "toolkit/control.h"

#include <vector>

namespace tavo {

class CommandButton : public Control {
public:
    using Control::Control;
    Property<std::string> Caption{*this, Prop::Caption};

    bool TakesFocus() const override { return true; }
    bool TakesReturn() const override { return true; }
    const std::string* MnemonicCaption() const override { return &Caption.Get(); }
    // Return and Space click it.
    void PersonKey(const Key& key) override;
    std::optional<std::string> PropertyText(std::string_view property) const override;
};

// Value 0 or 1. Set from code it raises Click, as a person's click does.
class CheckBox : public Control {
public:
    using Control::Control;
    Property<std::string> Caption{*this, Prop::Caption};
    Property<int> Value{*this, Prop::Value};

    bool TakesFocus() const override { return true; }
    const std::string* MnemonicCaption() const override { return &Caption.Get(); }
    void PersonClick() override;
    void PersonKey(const Key& key) override;
    std::optional<std::string> PropertyText(std::string_view property) const override;
    void PropertyChanged(Prop what) override;
};

// One of several options; choosing one takes the choice from the others of its
// group: those of its name within its container, or, where it is of no array,
// those of no array there. Becoming chosen raises Click.
class OptionButton : public Control {
public:
    using Control::Control;
    Property<std::string> Caption{*this, Prop::Caption};
    Property<bool> Value{*this, Prop::Value};

    bool TakesFocus() const override { return true; }
    const std::string* MnemonicCaption() const override { return &Caption.Get(); }
    void PersonClick() override;
    // Space chooses it, the arrows go to the next one of its group.
    void PersonKey(const Key& key) override;
    std::optional<std::string> PropertyText(std::string_view property) const override;
    void PropertyChanged(Prop what) override;

private:
    bool IsOfGroup(const Control& other) const;
    std::vector<OptionButton*> Group() const;
};

} // namespace tavo
