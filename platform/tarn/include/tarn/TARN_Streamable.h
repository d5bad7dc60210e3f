/// A value of the second object model that is written without existing as a whole in memory.
#pragma once

#include <tarn/TARNExport.h>

class BRIMOutputStream;

class TARN_EXPORT TARN_Streamable {
public:
    TARN_Streamable() = default;
    TARN_Streamable(const TARN_Streamable&) = delete;
    TARN_Streamable& operator=(const TARN_Streamable&) = delete;
    virtual ~TARN_Streamable();

    /// Writes the whole value to `out` and gives `out` back. May be called more than once.
    virtual BRIMOutputStream& operator>>(BRIMOutputStream& out) const = 0;
};
