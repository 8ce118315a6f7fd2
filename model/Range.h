#pragma once

/// One interval of valid values, both bounds included. A plain record: may be copied.
class Range {
public:
    /// Lower bound; 0 to begin with.
    double getRangeMin() const { return rangeMin; }
    void setRangeMin(double bound) { rangeMin = bound; }

    /// Upper bound; 0 to begin with.
    double getRangeMax() const { return rangeMax; }
    void setRangeMax(double bound) { rangeMax = bound; }

private:
    double rangeMin = 0.0;
    double rangeMax = 0.0;
};
