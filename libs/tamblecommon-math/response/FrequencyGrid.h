#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace tamble::common::response {

/// The plotted frequencies of a block, and what every record needs to know of them.
///
/// Tables are valid as long as the key is the block's. They are padded to whole blocks of the kernels, so that every
/// point goes through the same instructions whatever the resolution is.
class FrequencyGrid
{
public:
    struct Key
    {
        double lowest = 0;
        double highest = 0;
        double sampleRate = 0;
        int resolution = 0;

        bool operator==(const Key &) const = default;
    };

    /// Largest number of points; a higher resolution gets this many.
    static constexpr int mostPoints = 1048576;

    const Key &key() const { return m_key; }

    /// Whether anything but a flat curve can be evaluated: usable sample rate, finite positive frequencies.
    bool isUsable() const;

    /// Number of points: 0 for a resolution of 0 and less.
    std::size_t size() const;

    /// Number of points with the padding.
    std::size_t paddedSize() const;

    void rebuild(const Key &key);

    /// tan(pi f / fs) per point. Frequencies above fs / 2 count as fs / 2, where the tangent is finite (1.6e16).
    std::span<const double> tangents() const { return m_tangents; }

    /// Tables for taps: cosine and sine of w / 2 and of 16 w, with w = 2 pi f / fs.
    struct Angles
    {
        std::vector<double> cosHalf;
        std::vector<double> sinHalf;
        std::vector<double> cosSixteen;
        std::vector<double> sinSixteen;
    };

    /// Filled at the first call after a rebuild, as most blocks have no FIR record.
    const Angles &angles();

private:
    Key m_key;
    std::vector<double> m_ratios; // f / fs, up to 1/2
    std::vector<double> m_tangents;
    Angles m_angles;
};

} // namespace tamble::common::response
