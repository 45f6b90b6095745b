#include "apps/vorntool/core/StatisticsView.h"

#include "apps/vorntool/core/Columns.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/Moments.h"

namespace vorn::tool
{

namespace
{

std::int64_t SumOf(const std::vector<long>& counters)
{
    std::int64_t sum = 0;
    for (const long counter : counters)
    {
        sum += counter;
    }
    return sum;
}

} // namespace

std::string StartText(std::int64_t startDate)
{
    if (startDate == 0)
    {
        return "";
    }
    const std::string seconds = std::string("@").append(std::to_string(startDate));
    return ParseMoment(seconds, 0) ? MomentText(startDate) : seconds;
}

std::string TextOf(const StatisticsView& view)
{
    std::vector<LabelledText> lines{{"Start", StartText(view.startDate)},
                                    {"Counters", std::to_string(view.counters.size())},
                                    {"Counted", std::to_string(SumOf(view.counters))},
                                    {"File", view.isWhole ? "whole" : "damaged: not as long as its count says"}};
    std::string text = LinedUp(lines);
    lines.clear();
    for (const long counter : view.counters)
    {
        lines.push_back({std::to_string(lines.size()), std::to_string(counter)});
    }
    return lines.empty() ? text : text + "\n" + LinedUp(lines);
}

std::string JsonOf(const StatisticsView& view, const std::string& file)
{
    JsonWriter json;
    json.BeginObject().Name("file").Text(file).Name("start");
    view.startDate == 0 ? json.Null() : json.Text(StartText(view.startDate));
    json.Name("seconds").Whole(view.startDate).Name("whole").Flag(view.isWhole).Name("counters").BeginArray();
    for (const long counter : view.counters)
    {
        json.Whole(counter);
    }
    return json.EndArray().EndObject().Line();
}

} // namespace vorn::tool
