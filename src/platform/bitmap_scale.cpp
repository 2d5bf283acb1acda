#include "platform/bitmap_scale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace rlx {
namespace {

/// Which pixels of a line make up one pixel of the new one, and how much of each; the weights add up to 1.
struct Mix {
    int first = 0;
    std::vector<float> weights;
};

/// The new pixel covers `low` to `high` of the old line.
Mix AreaMix(double low, double high, int size) {
    Mix mix;
    mix.first = std::min(static_cast<int>(low), size - 1);
    const int last = std::min(static_cast<int>(std::ceil(high)) - 1, size - 1);
    for (int i = mix.first; i <= std::max(last, mix.first); ++i) {
        const double covered = std::min(high, i + 1.0) - std::max(low, static_cast<double>(i));
        mix.weights.push_back(static_cast<float>(covered / (high - low)));
    }
    return mix;
}

/// `centre` is that of the new pixel on the old line, where pixel i has its centre at i + 0.5.
Mix LinearMix(double centre, int size) {
    const double at = std::clamp(centre - 0.5, 0.0, size - 1.0);
    Mix mix;
    mix.first = std::min(static_cast<int>(at), std::max(size - 2, 0));
    const auto part = static_cast<float>(at - mix.first);
    mix.weights = {1.0F - part};
    if (size > 1) mix.weights.push_back(part);
    return mix;
}

std::vector<Mix> MixesOf(int from, int to) {
    std::vector<Mix> mixes;
    mixes.reserve(static_cast<std::size_t>(to));
    const double ratio = static_cast<double>(from) / to;
    for (int i = 0; i < to; ++i) {
        mixes.push_back(to <= from ? AreaMix(i * ratio, (i + 1) * ratio, from) : LinearMix((i + 0.5) * ratio, from));
    }
    return mixes;
}

/// One line of colours as floating-point red, green and blue.
using Line = std::vector<std::array<float, 3>>;

void AddRow(const std::uint32_t* row, float weight, Line& sum) {
    for (std::size_t x = 0; x < sum.size(); ++x) {
        sum[x][0] += weight * static_cast<float>(row[x] >> 16U & 0xFFU);
        sum[x][1] += weight * static_cast<float>(row[x] >> 8U & 0xFFU);
        sum[x][2] += weight * static_cast<float>(row[x] & 0xFFU);
    }
}

std::uint32_t MixedPixel(const Line& line, const Mix& mix) {
    std::array<float, 3> sum{};
    for (std::size_t i = 0; i < mix.weights.size(); ++i) {
        const auto& colour = line[static_cast<std::size_t>(mix.first) + i];
        for (std::size_t channel = 0; channel < sum.size(); ++channel)
            sum[channel] += mix.weights[i] * colour[channel];
    }
    const auto rounded = [](float value) { return static_cast<std::uint32_t>(std::clamp(value + 0.5F, 0.0F, 255.0F)); };
    return 0xFF000000U | rounded(sum[0]) << 16U | rounded(sum[1]) << 8U | rounded(sum[2]);
}

}  // namespace

CBitmap Scale(const CBitmap& bitmap, int width, int height) {
    if (bitmap.IsEmpty() || width < 1 || height < 1) return {};
    const auto columns = MixesOf(bitmap.Width(), width);
    const auto rows = MixesOf(bitmap.Height(), height);
    CBitmap result(width, height);
    Line line;
    for (int y = 0; y < height; ++y) {
        const Mix& mix = rows[static_cast<std::size_t>(y)];
        line.assign(static_cast<std::size_t>(bitmap.Width()), {});
        for (std::size_t i = 0; i < mix.weights.size(); ++i)
            AddRow(bitmap.Row(mix.first + static_cast<int>(i)), mix.weights[i], line);
        std::uint32_t* to = result.Row(y);
        for (int x = 0; x < width; ++x)
            to[x] = MixedPixel(line, columns[static_cast<std::size_t>(x)]);
    }
    return result;
}

CBitmap Cropped(const CBitmap& bitmap, int x, int y, int width, int height) {
    CBitmap result(width, height);
    for (int row = 0; row < height; ++row)
        std::copy_n(bitmap.Row(y + row) + x, width, result.Row(row));
    return result;
}

}  // namespace rlx
