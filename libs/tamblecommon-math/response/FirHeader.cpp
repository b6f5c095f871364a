#include "response/FirHeader.h"

#include "response/FirDesign.h"
#include "response/ParameterRules.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace tamble::common::response {

namespace {

constexpr std::string_view prefix = "VELA-Net FIR-Filter=";

// A header text that is put together without allocating.
class Text
{
public:
    Text &operator<<(std::string_view part)
    {
        const std::size_t room = std::min(part.size(), m_characters.size() - m_size);
        std::copy_n(part.begin(), room, m_characters.begin() + static_cast<std::ptrdiff_t>(m_size));
        m_size += room;
        return *this;
    }

    // Six significant digits in any locale.
    Text &operator<<(double number) { return appendWith(number, std::chars_format::general, 6); }
    Text &operator<<(int number) { return appendWith(number); }

    std::string_view view() const { return {m_characters.data(), m_size}; }

private:
    template <typename... Arguments>
    Text &appendWith(Arguments... arguments)
    {
        char *begin = m_characters.data();
        const auto result = std::to_chars(begin + m_size, begin + m_characters.size(), arguments...);
        m_size = static_cast<std::size_t>(result.ptr - begin);
        return *this;
    }

    std::array<char, 128> m_characters{};
    std::size_t m_size = 0;
};

void describeDesign(const FIRFilter &filter, const FirShape &shape, double sampleRate, Text &text)
{
    const double highPass = usableCorner(filter.freqHP, sampleRate);
    const double lowPass = usableCorner(filter.freqLP, sampleRate);
    if (shape.minimumPhase)
        text << "MinPhase ";
    switch (shape.band) {
    case FirBand::LowPass:
        text << "LoPass " << lowPass;
        break;
    case FirBand::HighPass:
        text << "HiPass " << highPass;
        break;
    case FirBand::BandPass:
        text << "BandPass " << std::min(highPass, lowPass) << "-" << std::max(highPass, lowPass);
        break;
    }
    text << " Hz, " << usableTaps(filter) << " taps";
}

bool isOwnText(std::string_view header)
{
    if (header.empty())
        return false;
    if (!header.starts_with(prefix))
        return true;
    header.remove_prefix(prefix.size());
    constexpr std::array written{"Thru", "User", "LoPass ", "HiPass ", "BandPass ", "MinPhase "};
    return std::none_of(written.begin(), written.end(), [header](auto text) { return header.starts_with(text); });
}

bool passesThrough(const FIRFilter &filter)
{
    const auto given = std::min(filter.coefficients.size(), static_cast<std::size_t>(usableTaps(filter)));
    if (given == 0)
        return true;
    const auto begin = filter.coefficients.begin();
    return *begin == 1 &&
           std::all_of(begin + 1, begin + static_cast<std::ptrdiff_t>(given), [](double tap) { return tap == 0; });
}

} // namespace

void updateHeader(FIRFilter &filter, double sampleRate)
{
    Text text;
    text << prefix;
    if (firDesign(filter, sampleRate)) {
        describeDesign(filter, *firShape(filter.type), sampleRate, text);
    } else if (isDesign(filter)) {
        text << "Thru";
    } else {
        if (isOwnText(filter.header))
            return;
        text << (passesThrough(filter) ? "Thru" : "User");
    }
    if (filter.header != text.view())
        filter.header = text.view();
}

} // namespace tamble::common::response
