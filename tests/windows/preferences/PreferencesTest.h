#pragma once

#include "apps/sample/preferences/PreferencesDialog.h"
#include "apps/sample/preferences/resource.h"
#include "tests/support/ScratchKey.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace vorn::test
{

/// A host application whose settings are the test's own, and empty at first, and its preferences.
class PreferencesTest : public testing::Test
{
protected:
    PreferencesTest();
    ~PreferencesTest() override;

    /// Opens the dialog as a program does, but without its loop.
    preferences::PreferencesDialog& Open();
    /// The one that is open.
    preferences::PreferencesDialog& Dialog() const;
    void Close();

    void Choose(const char* path) const;
    void Click(UINT id) const;
    /// Replaces a field's text, a character after the other.
    void Type(UINT id, const std::string& text) const;
    void Select(UINT id, const char* text) const;
    /// A button at the bottom.
    void Press(UINT id) const;
    std::string TextOf(UINT id) const;
    bool Shows(UINT id) const;
    bool IsOpen() const;
    /// The note that refuses an entry; empty when there is none.
    static std::string RefusalText();

    /// All settings of the application but the dialog's own place: "Section\Key=value", one a line.
    std::string Stored() const;

    int m_changes = 0; ///< that the dialog told of
    int m_clearings = 0;

private:
    ScratchKey m_settings{HKEY_CURRENT_USER, "Software\\Vornwald\\PreferencesTests"};
    ScratchKey m_shared{HKEY_CURRENT_USER, "Software\\Vornwald\\Global"};
    std::unique_ptr<preferences::PreferencesDialog> m_dialog;
};

} // namespace vorn::test
