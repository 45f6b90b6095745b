#include "bench/PairedTimer.h"
#include "config/Registry.h"

#include <array>
#include <stdexcept>
#include <string>

// The registry store against the bare calls that do the same work.
namespace
{
using vorn::bench::Compare;

constexpr char kPath[] = "Software\\VornBench Registry";
constexpr int kCount = 1000;

/// A scratch key that an object and a bare handle have open.
class Scratch
{
public:
    Scratch()
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, kPath);
        if (!key.Connect(HKEY_CURRENT_USER, nullptr) ||
            !key.Create(kPath, nullptr, Registry::OptionVolatile, Registry::PermissionAllAccess, nullptr, nullptr))
        {
            throw std::runtime_error("the scratch key could not be made");
        }
    }
    ~Scratch()
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, kPath);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    void MakeValues()
    {
        for (DWORD i = 0; i < kCount; ++i)
        {
            key.SetDoubleWordValue(("Value number " + std::to_string(i)).c_str(), i);
        }
    }

    void MakeKeys(const char* parent = "")
    {
        for (int i = 0; i < kCount; ++i)
        {
            HKEY made = nullptr;
            RegCreateKeyExA(key.Key(), (parent + Name(i)).c_str(), 0, nullptr, REG_OPTION_VOLATILE, KEY_WRITE, nullptr,
                            &made, nullptr);
            RegCloseKey(made);
        }
    }

    static std::string Name(int index)
    {
        return "Key number " + std::to_string(index);
    }

    Registry key;
};

DWORD EnumerateWithStore(Registry& key)
{
    CString name;
    Registry::KeyValueTypes type = Registry::TypeNone;
    std::array<BYTE, 64> data;
    DWORD index = 0;
    DWORD size = data.size();
    while (key.EnumerateValues(index, name, type, data.data(), size))
    {
        ++index;
        size = data.size();
    }
    return index;
}

DWORD EnumerateBarely(HKEY key)
{
    std::array<char, 256> name;
    std::array<BYTE, 64> data;
    DWORD index = 0;
    DWORD nameSize = name.size();
    DWORD size = data.size();
    DWORD type = 0;
    while (RegEnumValueA(key, index, name.data(), &nameSize, nullptr, &type, data.data(), &size) == ERROR_SUCCESS)
    {
        ++index;
        nameSize = name.size();
        size = data.size();
    }
    return index;
}

void EnumerateValues(benchmark::State& state)
{
    Scratch scratch;
    scratch.MakeValues();
    DWORD found = 0;
    DWORD expected = 0;
    Compare(
        state, 1,
        [&]
        {
            found += EnumerateWithStore(scratch.key);
        },
        [&]
        {
            expected += EnumerateBarely(scratch.key.Key());
        });
    if (found != expected || found == 0)
    {
        state.SkipWithError("not all values were found");
    }
}
BENCHMARK(EnumerateValues)->Name("Registry/1,000 values enumerated to bare calls (at most 1.2)")->UseManualTime();

void DeleteKeys(benchmark::State& state)
{
    Scratch scratch;
    int failures = 0;
    Compare(
        state, 1,
        [&]
        {
            for (int i = 0; i < kCount; ++i)
            {
                failures += !scratch.key.DeleteKey(Scratch::Name(i).c_str(), false);
            }
        },
        [&]
        {
            for (int i = 0; i < kCount; ++i)
            {
                failures += RegDeleteKeyA(scratch.key.Key(), Scratch::Name(i).c_str()) != ERROR_SUCCESS;
            }
        },
        [&]
        {
            scratch.MakeKeys();
        });
    if (failures != 0)
    {
        state.SkipWithError("not all keys were deleted");
    }
}
BENCHMARK(DeleteKeys)->Name("Registry/1,000 keys deleted to bare calls (at most 1.2)")->UseManualTime();

/// The least that takes a key with keys of one level below it away.
LSTATUS DeleteTreeBarely(HKEY parent, const char* name)
{
    HKEY key = nullptr;
    RegOpenKeyExA(parent, name, 0, DELETE | KEY_ENUMERATE_SUB_KEYS, &key);
    std::array<char, 256> subkey;
    DWORD size = subkey.size();
    while (RegEnumKeyExA(key, 0, subkey.data(), &size, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS)
    {
        RegDeleteKeyA(key, subkey.data());
        size = subkey.size();
    }
    RegCloseKey(key);
    return RegDeleteKeyA(parent, name);
}

void DeleteTree(benchmark::State& state)
{
    Scratch scratch;
    int failures = 0;
    Compare(
        state, 1,
        [&]
        {
            failures += !scratch.key.DeleteKey("Tree", true);
        },
        [&]
        {
            failures += DeleteTreeBarely(scratch.key.Key(), "Tree") != ERROR_SUCCESS;
        },
        [&]
        {
            scratch.MakeKeys("Tree\\");
        });
    if (failures != 0)
    {
        state.SkipWithError("the tree was not deleted");
    }
}
BENCHMARK(DeleteTree)->Name("Registry/Key with 1,000 keys below deleted to bare calls (at most 1.2)")->UseManualTime();
} // namespace
