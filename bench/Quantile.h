#pragma once

#include <algorithm>
#include <vector>

/// The value that the part given (0 to 1) of the values lies below. There must be at least one.
inline double quantile(std::vector<double> values, double part)
{
    const auto at = values.begin() + std::ptrdiff_t(part * double(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

inline double median(const std::vector<double>& values)
{
    return quantile(values, 0.5);
}
