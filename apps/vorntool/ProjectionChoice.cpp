#include "apps/vorntool/ProjectionChoice.h"

#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/ChartWords.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <algorithm>
#include <vector>

namespace vorn::tool
{

namespace
{

constexpr double kEarthRadius = 6378137; // metres

std::vector<std::string> PartsOf(const std::string& text, char separator)
{
    std::vector<std::string> parts;
    std::string::size_type start = 0;
    for (auto end = text.find(separator); end != std::string::npos; end = text.find(separator, start))
    {
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    parts.push_back(text.substr(start));
    return parts;
}

// What the registry says of the modules that it skips; in its place while it starts.
class RegistryLog : private VornLog
{
public:
    RegistryLog()
    {
        mpSingleInst = this;
    }
    ~RegistryLog() override
    {
        mpSingleInst = m_before;
    }
    RegistryLog(const RegistryLog&) = delete;
    RegistryLog& operator=(const RegistryLog&) = delete;

    // Empty when nothing was skipped.
    std::string FirstLine()
    {
        char* raw = nullptr;
        GetLog(raw);
        const std::unique_ptr<char[]> text(raw);
        const std::string lines = text ? text.get() : "";
        return lines.substr(0, lines.find('\r'));
    }

private:
    VornLog* m_before = Shared();
};

// A full path in the library's code page: a bare name would be looked for among the system's modules.
std::string ModulePath(const std::string& word)
{
    char path[MAX_PATH] = "";
    const std::optional<CString> text = LibraryFromUtf8(word);
    const DWORD length = text && !text->IsEmpty() ? GetFullPathNameA(*text, MAX_PATH, path, nullptr) : 0;
    return length > 0 && length < MAX_PATH ? path : word;
}

std::vector<std::string> NamesOf(const ProjectionLib& library)
{
    const int count = library.NumProjections();
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
    {
        names.push_back(Utf8FromLibrary(library.ProjectionName(i)));
    }
    return names;
}

// Numbers with commas between them; nothing when one is none.
std::optional<std::vector<double>> NumbersOf(const std::string& text)
{
    std::vector<double> numbers;
    for (const std::string& part : PartsOf(text, ','))
    {
        const auto number = ParseNumber(part);
        if (!number)
        {
            return std::nullopt;
        }
        numbers.push_back(*number);
    }
    return numbers;
}

// Why a part of the setup failed.
struct Trouble
{
    ExitStatus status;
    std::string reason;
};

std::optional<Trouble> SetParameters(Projection& projection, const Invocation& call)
{
    if (!call.Has("params"))
    {
        return std::nullopt;
    }
    const auto values = NumbersOf(call.ValueOf("params", ""));
    if (!values)
    {
        return Trouble{ExitStatus::WrongUse, "--params takes numbers with commas between them"};
    }
    if (static_cast<int>(values->size()) > projection.NumParams())
    {
        return Trouble{ExitStatus::WrongUse, "--params has more numbers than the projection has parameters"};
    }
    for (int i = 0; i < static_cast<int>(values->size()); ++i)
    {
        const double value = (*values)[static_cast<std::size_t>(i)];
        if (!projection.SetParamValue(i, value))
        {
            return Trouble{ExitStatus::Refused, NumberText(value) + " is out of range for the parameter " +
                                                    Quoted(Utf8FromLibrary(projection.ParamName(i)))};
        }
    }
    return std::nullopt;
}

std::optional<Trouble> SetCenter(Projection& projection, const Invocation& call)
{
    if (!call.Has("center"))
    {
        return std::nullopt;
    }
    const auto values = NumbersOf(call.ValueOf("center", ""));
    if (!values || values->size() != 2)
    {
        return Trouble{ExitStatus::WrongUse, "--center takes a latitude and a longitude, LAT,LON"};
    }
    if (!projection.SetMapPole(values->front(), values->back()))
    {
        return Trouble{ExitStatus::Refused, "the map cannot lie around " + Quoted(call.ValueOf("center", ""))};
    }
    return std::nullopt;
}

std::optional<Trouble> SetSkew(Projection& projection, const Invocation& call)
{
    const auto skew = ParseNumber(call.ValueOf("skew", "0"));
    if (!skew)
    {
        return Trouble{ExitStatus::WrongUse, "--skew takes degrees"};
    }
    projection.SetSkew(*skew);
    return std::nullopt;
}

// A projection of the registry's number `index`; null when its plug-in made none.
std::optional<Trouble> SetUp(Projection* projection, int index, const Invocation& call)
{
    if (!projection)
    {
        return Trouble{ExitStatus::Refused, "the plug-in makes no projection"};
    }
    std::optional<Trouble> trouble = SetParameters(*projection, call);
    // A plug-in's projection was asked once, when it was made.
    if (!trouble && index < ProjectionLib::mpInstance->NumBuiltIn() && !projection->Init())
    {
        trouble = Trouble{ExitStatus::Refused, "these parameters make no map"};
    }
    trouble = trouble ? trouble : SetCenter(*projection, call);
    return trouble ? trouble : SetSkew(*projection, call);
}

} // namespace

ProjectionRegistry::~ProjectionRegistry()
{
    WinProjectionLib::Deinit();
}

bool ProjectionRegistry::Start(const Command& self, const Invocation& call, Output& output)
{
    std::vector<std::string> files;
    if (call.Has("plugins"))
    {
        files = PartsOf(call.ValueOf("plugins", ""), ';');
    }
    std::transform(files.begin(), files.end(), files.begin(), ModulePath);
    std::vector<char*> paths(files.size());
    std::transform(files.begin(), files.end(), paths.begin(),
                   [](std::string& file)
                   {
                       return file.data();
                   });

    RegistryLog log;
    WinProjectionLib::Init(paths.data(), static_cast<int>(paths.size()));
    const std::string skipped = log.FirstLine();
    if (!skipped.empty())
    {
        ReportError(output, self, Utf8FromLibrary(skipped));
    }
    return skipped.empty();
}

std::optional<ProjectionSetup> TakeProjection(const Command& self, const Invocation& call, Output& output,
                                              ExitStatus& status)
{
    const std::string& word = call.values[0];
    const std::optional<int> index = ProjectionNamed(word, NamesOf(*ProjectionLib::mpInstance));
    if (!index)
    {
        status = ExitStatus::WrongUse;
        ReportError(output, self, "unknown projection " + Quoted(word) + "; 'vorntool proj list' shows them");
        return std::nullopt;
    }
    ProjectionSetup setup{std::unique_ptr<Projection>(ProjectionLib::mpInstance->CreateProjection(*index)),
                          call.Has("metres") ? kEarthRadius : 1};
    const std::optional<Trouble> trouble = SetUp(setup.projection.get(), *index, call);
    if (!trouble)
    {
        return setup;
    }
    status = trouble->status;
    ReportError(output, self, trouble->reason);
    return std::nullopt;
}

} // namespace vorn::tool
