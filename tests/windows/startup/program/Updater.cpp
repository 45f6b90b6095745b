#include <windows.h>

#include <fstream>
#include <string>

// Writes the folder in which it was started, and how it was to be shown, into started.txt beside itself.
int main()
{
    char module[MAX_PATH] = "";
    char folder[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, module, MAX_PATH);
    GetCurrentDirectoryA(MAX_PATH, folder);
    STARTUPINFOA start{};
    start.cb = sizeof start;
    GetStartupInfoA(&start);
    const std::string path(module);
    const std::string report = path.substr(0, path.find_last_of('\\') + 1) + "started";
    {
        std::ofstream file(report + ".new", std::ios::binary);
        file << folder << '\n' << start.wShowWindow << '\n';
    }
    return MoveFileExA((report + ".new").c_str(), (report + ".txt").c_str(), MOVEFILE_REPLACE_EXISTING) ? 0 : 1;
}
