#include "tools/sample/SampleValues.h"

#include <algorithm>
#include <array>
#include <span>

namespace zel::kiv::sample {

namespace {

/// `part` is looked for in the words of a key with a blank at both ends, so that " vin " is not
/// found in "driving". The first row that fits holds.
template <typename Value>
struct Row {
    std::string_view part;
    Value value;
};

struct Texts {
    std::string_view first;
    std::string_view second;
};

constexpr auto texts = std::to_array<Row<Texts>>({
    {"uri ", {"https://example.org/one", "https://example.org/two"}},
    {"url ", {"https://example.org/one", "https://example.org/two"}},
    {"icon ", {"icon-one.png", "icon-two.png"}},
    {" image", {"image-one.png", "image-two.png"}},
    {" logo", {"logo-one.png", "logo-two.png"}},
    {" background ", {"background-one.png", "background-two.png"}},
    {" travel time", {"PT25M", "PT40M"}},
    {" remaining time ", {"PT25M", "PT40M"}},
    {" time length ", {"PT25M", "PT40M"}},
    {" timezone abbreviation ", {"CET", "GMT"}},
    {" timezone ", {"Central European Time", "Greenwich Mean Time"}},
    {" stamp ", {"2026-01-15T08:30:00Z", "2026-01-16T08:30:00Z"}},
    {"timestamp ", {"2026-01-15T08:30:00Z", "2026-01-16T08:30:00Z"}},
    {" date time ", {"2026-01-15T08:30:00Z", "2026-01-16T08:30:00Z"}},
    {" date", {"2026-01-15", "2026-01-16"}},
    {" last ", {"2026-01-15T08:30:00Z", "2026-01-16T08:30:00Z"}},
    {" latest ", {"2026-01-15T08:30:00Z", "2026-01-16T08:30:00Z"}},
    {" time ", {"08:30", "18:30"}},
    {" opening hours ", {"Mo-Fr 08:00-18:00", "Sa 09:00-13:00"}},
    {" unit temperature ", {"celsius", "fahrenheit"}},
    {" unit pressure ", {"bar", "psi"}},
    {" unit consumption ", {"l/100km", "mpg"}},
    {" unit percent ", {"percent", "percent"}},
    {" unit duration ", {"min", "h"}},
    {" unit ang", {"deg", "rad"}},
    {" unit acceleration ", {"m/s2", "g"}},
    {" price unit ", {"EUR", "GBP"}},
    {" costs unit ", {"EUR", "GBP"}},
    {" speed", {"km/h", "mph"}},
    {" unit ", {"km", "mi"}},
    {" language", {"en_GB", "de_DE"}},
    {" country", {"DE", "GB"}},
    {" city ", {"Hillford", "Lakeside"}},
    {" street", {"High Street", "Station Road"}},
    {" road number", {"A 7", "B 12"}},
    {" road ", {"High Street", "Station Road"}},
    {" house number", {"12", "14"}},
    {" zip", {"12345", "54321"}},
    {" phone", {"+1 555 0100", "+1 555 0101"}},
    {" vin ", {"ZEL00000000000001", "ZEL00000000000002"}},
    {" identification number ", {"ZEL00000000000001", "ZEL00000000000002"}},
    {" ip ", {"192.0.2.1", "192.0.2.2"}},
    {" version ", {"1.4.2", "1.5.0"}},
    {" codec ", {"flac", "opus"}},
    {" freq label ", {"98.5 MHz", "101.2 MHz"}},
    {" artist", {"The Examples", "Second Example"}},
    {" album ", {"First Album", "Second Album"}},
    {" title ", {"First Title", "Second Title"}},
    {" direction ", {"left", "right"}},
    {" status ", {"ready", "busy"}},
    {" state ", {"on", "off"}},
    {"state ", {"on", "off"}},
    {" switch value configuration", {"on", "off"}},
    {" switch value ", {"on", "off"}},
    {" mode ", {"automatic", "manual"}},
    {" action", {"confirm", "cancel"}},
    {" id ", {"A1", "A2"}},
    {" identifier ", {"A1", "A2"}},
    {"serviceid ", {"A1", "A2"}},
    {" code", {"A1", "A2"}},
    {"type ", {"standard", "special"}},
});

constexpr auto ints = std::to_array<Row<int>>({
    {" width ", 1280},       {" height ", 480},      {"frequenc", 98500},
    {" freq ", 98500},       {" percent ", 60},      {" progress ", 40},
    {" duration ", 215},     {" length ", 215},      {" buffer time ", 30},
    {" bitrate ", 320},      {"rate ", 48000},       {" min ", 0},
    {" max", 100},           {" rating ", 4},        {" port ", 8080},
    {" disk space", 2048},   {" size ", 2048},       {"timestamp ", 1768465800},
    {" utilization ", 35},   {" value ", 50},        {" gain ", 3},
    {" station ranking", 2}, {" channel number", 5}, {" reception ", 80},
});

constexpr auto doubles = std::to_array<Row<double>>({
    {" min ", 0.5},        {" max ", 240.0},       {" resolution ", 0.5},   {" current ", 21.5},
    {" value ", 21.5},     {" distance ", 1250.0}, {" to ", 350.0},         {" speed ", 48.5},
    {" costs ", 4.5},      {" price ", 1.75},      {" percent ", 62.5},     {" degrees ", 90.0},
    {" heading ", 182.25}, {" altitude ", 412.5},  {" size ", 35.75},       {" memory ", 512.25},
    {" capacity ", 77.5},  {" duration ", 95.5},   {" utilization ", 34.5}, {"rate ", 59.94},
});

template <typename Value>
Value valueFor(std::string_view key, std::span<Row<Value> const> rows, Value otherwise)
{
    std::string const words = " " + wordsOf(key) + " ";
    auto const row = std::ranges::find_if(
        rows, [&](auto const& each) { return words.find(each.part) != std::string::npos; });
    return row == rows.end() ? otherwise : row->value;
}

bool isUpper(char letter)
{
    return letter >= 'A' && letter <= 'Z';
}

} // namespace

std::string wordsOf(std::string_view name)
{
    std::string words;
    bool afterUpper = true;
    for (char const letter : name) {
        if (isUpper(letter) && !afterUpper) {
            words += ' ';
        }
        words += isUpper(letter) ? static_cast<char>(letter - 'A' + 'a') : letter;
        afterUpper = isUpper(letter);
    }
    return words;
}

std::vector<std::string> textsFor(std::string_view key)
{
    // A key that no row knows speaks for itself.
    std::string const words = wordsOf(key);
    std::string const second = words + " 2";
    auto const found = valueFor<Texts>(key, texts, {words, second});
    return {std::string(found.first), std::string(found.second)};
}

std::string textFor(std::string_view key)
{
    return textsFor(key).front();
}

int intFor(std::string_view key)
{
    return valueFor<int>(key, ints, 1);
}

double doubleFor(std::string_view key)
{
    return valueFor<double>(key, doubles, 12.5);
}

} // namespace zel::kiv::sample
