#include "toolkit/core/LinkOpening.h"

#include <algorithm>
#include <iterator>

namespace vorn
{

namespace
{
struct LinkError
{
    int code;
    const char* text;
};

constexpr LinkError kLinkErrors[] = {
    {0, "The operating system is out of memory or resources."},
    {2, "The specified file was not found.  The default browser could not be started."},
    {3, "The specified path was not found."},
    {5, "The operating system denied access to the specified file."},
    {8, "There was not enough memory to complete the operation."},
    {11, "The .EXE file is invalid (non-Win32 .EXE or error in .EXE image)."},
    {26, "A sharing violation occurred. "},
    {27, "The filename association is incomplete or invalid."},
    {28, "The DDE transaction could not be completed because the request timed out."},
    {29, "The DDE transaction failed."},
    {30, "The DDE transaction could not be completed because other DDE transactions were being processed."},
    {31, "There is no application associated with the given URL."},
    {32, "The specified dynamic-link library was not found."},
};
} // namespace

std::string BrowserCommand(std::string_view registered, std::string_view url)
{
    std::size_t cut = registered.find("\"%1\"");
    if (cut == std::string_view::npos)
    {
        cut = registered.find("%1");
    }
    return std::string(registered.substr(0, cut)).append(1, ' ').append(url);
}

std::string LinkErrorMessage(int code)
{
    std::string message = "Can't open link:\n\n";
    const LinkError* known = std::find_if(std::begin(kLinkErrors), std::end(kLinkErrors),
                                          [code](const LinkError& error)
                                          {
                                              return error.code == code;
                                          });
    if (known != std::end(kLinkErrors))
    {
        return message.append(known->text);
    }
    return message.append("Unknown Error (").append(std::to_string(code)).append(") occurred.");
}

} // namespace vorn
