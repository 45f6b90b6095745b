#pragma once

#include "apps/sample/preferences/Category.h"

namespace vorn::preferences
{

/// The proxies that the whole family uses. Their dialog stores them by itself.
class NetworkCategory : public Category
{
public:
    NetworkCategory();

    void Fill() override;
    void Arrange(Form& form, Form::Pane& area) override;
    bool Store() override;
    bool OnControl(UINT id, UINT code) override;

private:
    void EditProxies();
};

} // namespace vorn::preferences
