/// The value of a parameter that refers to an attachment.
#pragma once

#include "soap/read/TextStore.h"

#include <korva/KORVAUnknownSchemaType.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>

namespace korva {

/// Holds a text or binary value that a message takes before its content is there. A reference fills
/// objects, and a message is none; so this object is filled in its place, through `setChildObject`.
class AttachedValue final : public KORVAUnknownSchemaType {
public:
    AttachedValue();
    ~AttachedValue() override;

    /// The value for a parameter of this type, in the form in which messages take it. Lives as long
    /// as this object, and is empty until then.
    void* valueFor(ObjectType type);

    /// Fills the value with the content of `obj`, which stays where it is.
    std::size_t setChildObject(const char* name, void* obj, const ObjectType& type,
                               std::size_t* idx) override;

private:
    void setText(const char* text);
    void setBinary(const KORVAXSBase64Binary& value);

    KORVA_CharStreamable m_text;
    TextView m_view;  ///< of the text's place
    KORVAXSBase64Binary m_binary;
};

}  // namespace korva
