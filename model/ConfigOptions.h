#pragma once

/// Switches that hold for a whole run. A plain record: may be copied. Both are off to begin with.
class ConfigOptions {
public:
    /// Not-applicable and missing codes are created inside the ranges.
    bool getCreateNotAppMissingInRange() const { return createNotAppMissingInRange; }
    void setCreateNotAppMissingInRange(bool on) { createNotAppMissingInRange = on; }

    /// No ranges are created.
    bool getCreateNoRanges() const { return createNoRanges; }
    void setCreateNoRanges(bool on) { createNoRanges = on; }

private:
    bool createNotAppMissingInRange = false;
    bool createNoRanges = false;
};
