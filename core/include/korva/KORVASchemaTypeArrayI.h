/// The part of the reflective interface that arrays add.
#pragma once

#include <korva/KORVASchemaTypeI.h>

/// An array of the schema: an object whose children are numbered from 1. Where other objects take
/// a child's name, getChildObject takes a number made by KORVAChildIndex::toName.
class KORVA_EXPORT KORVASchemaTypeArrayI : public KORVASchemaTypeI {
public:
    KORVASchemaTypeArrayI() = default;
    ~KORVASchemaTypeArrayI() override;

    /// The number of elements.
    virtual std::size_t size() const = 0;

protected:
    KORVASchemaTypeArrayI(const KORVASchemaTypeArrayI&) = default;
    KORVASchemaTypeArrayI& operator=(const KORVASchemaTypeArrayI&) = default;
};
