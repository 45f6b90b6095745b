#pragma once

#include "apps/sample/preferences/Category.h"

namespace vorn::preferences
{

/// Where the program looks for its files.
class FoldersCategory : public Category
{
public:
    FoldersCategory();

    void Fill() override;
    void Arrange(Form& form, Form::Pane& area) override;
    std::optional<Fault> Check() const override;
    bool Store() override;
    bool OnControl(UINT id, UINT code) override;

private:
    std::size_t Marked() const;
    void Mark(std::size_t folder) const;
    void Browse();
};

} // namespace vorn::preferences
