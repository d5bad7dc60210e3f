/// Texts as the object model holds them: a `const char*` that may be a char streamable.
#pragma once

#include <string_view>

class KORVAObjectRegistryI;
class KORVAXSBase64Binary;

namespace korva {

/// How a copied text is to be freed.
enum class TextCopy {
    Array,  ///< `delete[]`, as classes, properties and restricted strings have it
    Free    ///< `free`, as text arrays have it
};

/// A copy of `text`, registered; null stays null. A char streamable is copied as one.
const char* copyText(const char* text, TextCopy form, KORVAObjectRegistryI& registry);

/// A copy of plain text, registered, that `delete[]` frees.
const char* copyText(std::string_view text, KORVAObjectRegistryI& registry);

/// Byte by byte; null equals null only, a char streamable one with the same pieces only.
bool equalTexts(const char* left, const char* right);

/// A copy, registered; null stays null. A streamed value shares the stream.
KORVAXSBase64Binary* copyBinary(const KORVAXSBase64Binary* value, KORVAObjectRegistryI& registry);

/// By content; null equals null only.
bool equalBinaries(const KORVAXSBase64Binary* left, const KORVAXSBase64Binary* right);

}  // namespace korva
