#include <VornCommon.h>

#include <cstdio>

namespace
{

void WriteFile(const char* name)
{
    CFile file(name, CFile::modeCreate | CFile::modeWrite);
    file.Write("x", 1);
}

void Keys()
{
    Registry store;
    store.Connect(HKEY_CURRENT_USER, nullptr);
    store.Create("Software\\VornExample\\Radios", nullptr, Registry::OptionNonVolatile, Registry::PermissionAllAccess,
                 nullptr, nullptr);
    store.SetValue("Channels", 760);
    store.SetValue("Maker", "none");

    CString name;
    Registry::KeyValueTypes type{};
    for (DWORD index = 0; store.EnumerateValues(index, name, type); ++index)
        std::printf("%s has type %d\n", name.GetString(), static_cast<int>(type));
    DWORD channels = 0;
    store.GetValue("Channels", channels);
    std::printf("%lu channels below %s\n", channels, store.RootName().GetString());
    const bool isText = store.GetStringValue("Channels", name);
    std::printf("read as a text: %d, error %lu\n", isText ? 1 : 0, store.GetLastError());

    store.Open("Software", Registry::PermissionAllAccess);
    std::printf("deleted with what is below: %d\n", store.DeleteKey("VornExample", true) ? 1 : 0);
}

void Files()
{
    for (const char* name : {"aids.dbf", "aids.dbt", "notes.txt"})
        WriteFile(name);
    CFileFindInExtSet finder;
    for (BOOL more = finder.FindFile("*.", "dbt|.dbf", 0); more;)
    {
        more = finder.FindNextFile(); // before the first match is read
        std::printf("%s\n", finder.GetFileName().GetString());
    }
    std::printf("a table: %d, a chart: %d\n", FileExists("*.dbf") ? 1 : 0, FileExists("*.chart") ? 1 : 0);
}

} // namespace

int main()
{
    CWinApp app("RegistriesExample");
    Keys();
    Files();
    return 0;
}
