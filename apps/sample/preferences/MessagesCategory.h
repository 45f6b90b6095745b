#pragma once

#include "apps/sample/preferences/Category.h"

namespace vorn::preferences
{

/// The message log: when it opens by itself, and what it holds.
class MessagesCategory : public Category
{
public:
    MessagesCategory();

    void Fill() override;
    void Arrange(Form& form, Form::Pane& area) override;
    bool Store() override;
    bool OnControl(UINT id, UINT code) override;
};

/// Puts the stored choice, which messages open the log by themselves, into force.
void ApplyLogDetail();

} // namespace vorn::preferences
