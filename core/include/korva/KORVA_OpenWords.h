/// Words of open enumerations that the schema lacks, as a program knows them.
#pragma once

#include <korva/KORVAExport.h>

/// Adds words to enumerations that are known to be larger than the schema has them, for reading and
/// writing, in the whole process and until its end. Meant for a program's start; any thread may use
/// it at any time.
class KORVA_EXPORT KORVA_OpenWords {
public:
    /// Adds a word to an enumeration, once; one that it has already changes nothing. The
    /// enumeration's class then takes it wherever it takes a word.
    /// @param enumeration the name in the schema, such as "runOptionEnum"
    /// @return the value of the word, to be cast to the class's Enum: the CRC-32 of the word
    /// @throws ZELAssertError a text is null, or `word` is empty
    /// @throws KORVAException 0xEA4F0010: there is no open enumeration of this name; 0xEA4F0011:
    ///     another word has the same value
    /// @throws ZELOutOfMemoryError no memory is left
    static int add(const char* enumeration, const char* word);
};
