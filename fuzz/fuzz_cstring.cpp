#include "framework/core/CString.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>

// Runs a program of string operations, one for each few bytes of input, on a CString and on a model made of
// std::string, beside a copy that must never change; both must agree after every step.

namespace
{
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size)
    {
    }
    bool IsEmpty() const
    {
        return m_size == 0;
    }
    std::uint8_t Byte()
    {
        if (m_size == 0)
        {
            return 0;
        }
        --m_size;
        return *m_data++;
    }
    int Number()
    {
        return static_cast<std::int8_t>(Byte());
    }
    char Character()
    {
        return static_cast<char>(Byte() % 4 == 0 ? ' ' : 'a' + Byte() % 3);
    }
    std::string Text()
    {
        std::string text(Byte() % 40U, '\0');
        for (char& ch : text)
        {
            ch = Character();
        }
        return text;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
};

void Check(bool isRight)
{
    if (!isRight)
    {
        std::abort();
    }
}

std::size_t Clip(int index, std::size_t limit)
{
    return index < 0 ? 0 : std::min(static_cast<std::size_t>(index), limit);
}

int ReplaceAll(std::string& model, const std::string& from, const std::string& to)
{
    int count = 0;
    for (std::size_t at = 0; !from.empty() && (at = model.find(from, at)) != std::string::npos; at += to.size())
    {
        model.replace(at, from.size(), to);
        ++count;
    }
    return count;
}

void Change(Input& input, CString& text, std::string& model)
{
    switch (input.Byte() % 10)
    {
    case 0:
    {
        const std::string more = input.Text();
        text += more.c_str();
        model += more;
        break;
    }
    case 1:
    {
        const int index = input.Number();
        const std::string more = input.Text();
        Check(text.Insert(index, more.c_str()) == static_cast<int>(model.size() + more.size()));
        model.insert(Clip(index, model.size()), more);
        break;
    }
    case 2:
    {
        const int index = input.Number();
        const int count = input.Number();
        text.Delete(index, count);
        const std::size_t at = Clip(index, model.size());
        model.erase(at, Clip(count, model.size() - at));
        break;
    }
    case 3:
    {
        const std::string from = input.Text();
        const std::string to = input.Text();
        Check(text.Replace(from.c_str(), to.c_str()) == ReplaceAll(model, from, to));
        break;
    }
    case 4:
    {
        const char ch = input.Character();
        Check(text.Remove(ch) == static_cast<int>(std::erase(model, ch)));
        break;
    }
    case 5:
        text.Trim();
        model.erase(0, std::min(model.find_first_not_of(' '), model.size()));
        model.erase(model.find_last_not_of(' ') + 1);
        break;
    case 6:
    {
        const int first = input.Number();
        const int count = input.Number();
        const std::size_t at = Clip(first, model.size());
        text = text.Mid(first, count);
        model = model.substr(at, Clip(count, model.size() - at));
        break;
    }
    case 7:
    {
        const std::size_t at = Clip(input.Number(), model.size());
        text = text.GetString() + at;
        model.erase(0, at);
        break;
    }
    case 8:
    {
        const std::size_t at = Clip(input.Number(), model.size());
        text.Append(text.GetString() + at);
        model += model.substr(at);
        break;
    }
    default:
        text.FreeExtra();
        text = std::move(text.MakeReverse());
        model.assign(model.rbegin(), model.rend());
    }
}

void CheckTokens(const CString& text, std::string_view model)
{
    int start = 0;
    std::size_t at = 0;
    for (;;)
    {
        const CString token = text.Tokenize(" ", start);
        at = std::min(model.find_first_not_of(' ', at), model.size());
        const std::size_t end = std::min(model.find(' ', at), model.size());
        Check(std::string_view(token) == model.substr(at, end - at));
        if (start == -1)
        {
            Check(at == model.size());
            return;
        }
        at = end;
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    CString text;
    std::string model;
    while (!input.IsEmpty() && model.size() < 10000)
    {
        const CString copy = text;
        const std::string before = model;
        Change(input, text, model);
        Check(text.GetLength() == static_cast<int>(model.size()) && model == text.GetString());
        Check(before == copy.GetString());
    }
    CheckTokens(text, model);
    return 0;
}
