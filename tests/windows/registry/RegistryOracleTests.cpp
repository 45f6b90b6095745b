#include "tests/windows/registry/ScratchRegistry.h"

#include <cstdio>
#include <memory>

using namespace vorn::test;

namespace
{
struct PipeCloser
{
    void operator()(FILE* pipe) const
    {
        _pclose(pipe);
    }
};

/// The system's own registry tool: what it stores the object reads, and the other way round.
class RegistryOracle : public ScratchRegistry
{
protected:
    // What the tool prints; errors too.
    std::string Reg(const std::string& command, const std::string& options) const
    {
        const std::string line = "reg " + command + " \"HKCU\\" + Path() + "\" " + options + " 2>&1";
        const std::unique_ptr<FILE, PipeCloser> pipe(_popen(line.c_str(), "rb"));
        std::string text;
        for (int c = std::fgetc(pipe.get()); c != EOF; c = std::fgetc(pipe.get()))
        {
            text += static_cast<char>(c);
        }
        return text;
    }

    // The line that the tool prints on a value: "    Name    REG_SZ    Denver".
    std::string Line(const std::string& name) const
    {
        const std::string text = Reg("query", "/v \"" + name + "\"");
        const std::size_t start = text.find("    " + name + "    ");
        return start == std::string::npos ? text : text.substr(start, text.find('\r', start) - start);
    }
};
} // namespace

TEST_F(RegistryOracle, ReadsWhatTheSystemsToolStored)
{
    Reg("add", "/v Name /d Denver /f");
    Reg("add", "/v Number /t REG_DWORD /d 305419896 /f");
    Reg("add", "/v Bytes /t REG_BINARY /d 00ff7f80 /f");
    Reg("add", "/v List /t REG_MULTI_SZ /s ; /d one;two;three /f");
    CString text;
    DWORD number = 0;
    CByteArray bytes;
    CStringArray texts;
    EXPECT_TRUE(Done(key, key.GetStringValue("Name", text)));
    EXPECT_EQ(Std(text), "Denver");
    EXPECT_TRUE(Done(key, key.GetDoubleWordValue("Number", number)));
    EXPECT_EQ(number, 0x12345678u);
    EXPECT_TRUE(Done(key, key.GetBinaryValue("Bytes", bytes)));
    EXPECT_EQ(Std(bytes), std::string("\x00\xFF\x7F\x80", 4));
    EXPECT_TRUE(Done(key, key.GetStringArrayValue("List", texts)));
    EXPECT_EQ(Std(texts), (std::vector<std::string>{"one", "two", "three"}));
}

TEST_F(RegistryOracle, StoresWhatTheSystemsToolReads)
{
    CByteArray bytes;
    Fill(bytes, std::string_view("\x00\xFF\x7F\x80", 4));
    CStringArray texts;
    Fill(texts, {"one", "two", "three"});
    EXPECT_TRUE(key.SetStringValue("Name", "Denver"));
    EXPECT_TRUE(key.SetDoubleWordValue("Number", 0x12345678));
    EXPECT_TRUE(key.SetBinaryValue("Bytes", bytes));
    EXPECT_TRUE(key.SetStringArrayValue("List", texts));
    EXPECT_EQ(Line("Name"), "    Name    REG_SZ    Denver");
    EXPECT_EQ(Line("Number"), "    Number    REG_DWORD    0x12345678");
    EXPECT_EQ(Line("Bytes"), "    Bytes    REG_BINARY    00FF7F80");
    EXPECT_EQ(Line("List"), "    List    REG_MULTI_SZ    one\\0two\\0three");
}
