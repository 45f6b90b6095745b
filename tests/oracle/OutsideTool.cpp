#include "tests/oracle/OutsideTool.h"

#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace vorn::test
{
namespace
{

class Pipe
{
public:
    Pipe()
    {
        if (pipe2(m_ends, O_CLOEXEC) != 0)
        {
            throw std::runtime_error(std::string("no pipe: ") + std::strerror(errno));
        }
    }
    ~Pipe()
    {
        close(m_ends[0]);
        CloseWritingEnd();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    int WritingEnd() const
    {
        return m_ends[1];
    }
    void CloseWritingEnd()
    {
        if (m_ends[1] >= 0)
        {
            close(m_ends[1]);
            m_ends[1] = -1;
        }
    }
    std::string ReadAll() const
    {
        std::string text;
        char block[4096];
        for (ssize_t count = 0; (count = read(m_ends[0], block, sizeof block)) > 0;)
        {
            text.append(block, static_cast<std::size_t>(count));
        }
        return text;
    }

private:
    int m_ends[2] = {-1, -1};
};

pid_t Start(const std::vector<std::string>& words, int output)
{
    std::vector<char*> arguments;
    for (const std::string& word : words)
    {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t child = 0;
    const int failure = posix_spawnp(&child, arguments.front(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failure != 0)
    {
        throw std::runtime_error(words.front() + " cannot be started: " + std::strerror(failure));
    }
    return child;
}

} // namespace

std::string RunTool(const std::vector<std::string>& words)
{
    Pipe output;
    const pid_t child = Start(words, output.WritingEnd());
    output.CloseWritingEnd();
    const std::string text = output.ReadAll();
    int status = -1;
    waitpid(child, &status, 0);
    if (status != 0)
    {
        throw std::runtime_error(words.front() + " ended with status " + std::to_string(status) + ": " + text);
    }
    return text;
}

} // namespace vorn::test
