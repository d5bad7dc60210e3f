/// What gzip data stand for.
#pragma once

class BRIMOutputStream;
class KORVA_Streamable;

namespace korva {

/// Writes what the gzip data of a streamable expand to. May be done again: a streamable that
/// cannot be rewound, and has been read to its end, is held as a whole, compressed as it is.
/// @throws ZELException the data are damaged or end early
void expand(const KORVA_Streamable& compressed, BRIMOutputStream& out);

}  // namespace korva
