#pragma once

#include <set>
#include <string>
#include <string_view>

/// The letters with which a menu's items are chosen, each of which is to stand for one item alone.
class MenuLetters
{
public:
    /// Takes the letter of an item that is there, "Zoom &in".
    void Take(std::string_view item);

    /// A name as an item, chosen with the first of its letters and digits that is free; without any when none is. An
    /// ampersand in the name is shown.
    std::string ItemOf(std::string_view name);

private:
    std::set<char> m_taken; ///< in small letters
};
