/// What a program needs that works with documents in memory or with a parser's events.
#pragma once

#include <korva/KORVAExport.h>

/// Keeps Xerces-C ready while it lives. One stands in the `main` of a program that uses the DOM or
/// SAX2 events of the bridges, or that reads documents other than those in UTF-8 without a document
/// type. Several may live at once; they are made and end on one thread at a time.
class KORVA_EXPORT KORVA_XmlPlatform {
public:
    /// @throws KORVAException 0xEA4F0026: Xerces-C does not start
    /// @throws ZELOutOfMemoryError no memory is left
    KORVA_XmlPlatform();
    /// With the last one Xerces-C ends: documents, and deserializers that have read, go before.
    ~KORVA_XmlPlatform();
    KORVA_XmlPlatform(const KORVA_XmlPlatform&) = delete;
    KORVA_XmlPlatform& operator=(const KORVA_XmlPlatform&) = delete;
};
