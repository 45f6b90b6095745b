#include "tests/guard/Damage.h"

#include <algorithm>
#include <random>

namespace vorn::guard
{

namespace
{

using Action = std::function<bool(const Bytes&, const std::string&)>;
using Offset = Bytes::difference_type;

constexpr std::size_t kMostCuts = 600;
constexpr int kChanges = 600;
constexpr int kMoves = 300;

bool CutShort(const Bytes& whole, const Action& action)
{
    const std::size_t step = whole.size() / kMostCuts + 1;
    for (std::size_t length = 0; length < whole.size(); length += step)
    {
        if (!action(Bytes(whole.begin(), whole.begin() + static_cast<Offset>(length)),
                    "cut to " + std::to_string(length) + " bytes"))
        {
            return false;
        }
    }
    return true;
}

std::uint8_t Changed(std::uint8_t byte, std::mt19937& random)
{
    switch (random() % 4)
    {
    case 0:
        return static_cast<std::uint8_t>(byte ^ (1u << random() % 8));
    case 1:
        return 0xFF;
    case 2:
        return 0;
    default:
        return static_cast<std::uint8_t>(random());
    }
}

bool ChangeBytes(const Bytes& whole, const Action& action, std::mt19937& random)
{
    for (int i = 0; i < kChanges; ++i)
    {
        Bytes damaged = whole;
        for (std::uint32_t count = 1 + random() % 4; count != 0; --count)
        {
            std::uint8_t& byte = damaged[random() % damaged.size()];
            byte = Changed(byte, random);
        }
        if (!action(damaged, "change of bytes " + std::to_string(i)))
        {
            return false;
        }
    }
    return true;
}

Bytes WithABlockMoved(const Bytes& whole, std::mt19937& random)
{
    const auto from = static_cast<Offset>(random() % whole.size());
    const auto count = static_cast<Offset>(1 + random() % std::min<std::size_t>(whole.size(), 64));
    const auto end = std::min(from + count, static_cast<Offset>(whole.size()));
    const Bytes block(whole.begin() + from, whole.begin() + end);
    Bytes damaged = whole;
    if (random() % 2 == 0)
    {
        damaged.erase(damaged.begin() + from, damaged.begin() + end);
    }
    if (random() % 2 == 0)
    {
        const auto to = static_cast<Offset>(random() % (damaged.size() + 1));
        damaged.insert(damaged.begin() + to, block.begin(), block.end());
    }
    return damaged;
}

bool MoveBlocks(const Bytes& whole, const Action& action, std::mt19937& random)
{
    for (int i = 0; i < kMoves; ++i)
    {
        if (!action(WithABlockMoved(whole, random), "move of a block " + std::to_string(i)))
        {
            return false;
        }
    }
    return true;
}

} // namespace

void ForEachDamage(const Bytes& whole, const Action& action)
{
    std::mt19937 random(20010911); // any fixed number: the damage is the same each time
    if (action(whole, "whole") && CutShort(whole, action) && !whole.empty())
    {
        static_cast<void>(ChangeBytes(whole, action, random) && MoveBlocks(whole, action, random));
    }
}

} // namespace vorn::guard
