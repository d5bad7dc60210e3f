/// A value that can write itself to a stream without existing as a whole in memory.
#pragma once

#include <brim/BRIMInputStream.h>
#include <korva/KORVAExport.h>

class BRIMOutputStream;

/// A source of bytes: read as an input stream, or written to an output stream in one go.
class KORVA_EXPORT KORVA_Streamable : public BRIMInputStream {
public:
    ~KORVA_Streamable() override;

    /// Writes the whole value to `out` and gives `out` back. May be called more than once.
    virtual BRIMOutputStream& operator>>(BRIMOutputStream& out) const = 0;

    /// Lets `read` begin anew. False, unless overridden: it goes on where it stands. Whoever needs
    /// to read such a stream once more has it write itself, and holds what it writes.
    virtual bool rewind();
};
