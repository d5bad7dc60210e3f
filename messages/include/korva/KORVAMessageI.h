/// The contract of the bus's messages.
#pragma once

#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASchemaTypeI.h>
#include <zel/ZELReferenceCount.h>
#include <zel/ZELSmartPointer.h>

#include <cstddef>
#include <vector>

class KORVAHalyardHeader;

/// A typed request or reply: named parameters, and optionally the bus header that travels with
/// them. A message knows no operation; a port type binds it to one.
///
/// Reference-counted from 0: hold it in a ZELSmartPointer. It keeps its object registry alive, and
/// the parameters' objects live as long as the registry. Used by one thread at a time.
class KORVA_EXPORT KORVAMessageI : public ZELReferenceCount {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    /// The identity of a message: the CRC-32 of its name.
    enum MessageType : int {
        e_Unknown = 0,
        eKORVA_Null_Request = 1,
        eKORVA_Null_Reply = 2,
#include <korva/KORVAMessageTypes_gen_.inc>
    };

    ~KORVAMessageI() override;
    KORVAMessageI(const KORVAMessageI&) = delete;
    KORVAMessageI& operator=(const KORVAMessageI&) = delete;

    /// The identity, a constant of the class.
    virtual MessageType getMessageType() const = 0;

    /// Appends the parameters' names in declared order. The texts live as long as the process.
    virtual void getChildObjectNames(std::vector<const char*>& names) const = 0;

    /// The parameter called `name`: an object, text or binary (null while unset), or the address
    /// of a value (null while absent). With `forWrite` an absent value becomes present first. An
    /// unknown name gives null.
    /// @throws ZELAssertError `name` is null
    virtual void* getChildObject(const char* name, bool forWrite) = 0;

    /// The type of the parameter: of the stored object if there is one, otherwise the declared
    /// type; e_Unknown for an unknown name.
    /// @throws ZELAssertError `name` is null
    virtual ObjectType getChildType(const char* name) const = 0;

    /// Stores `value`, null included, as the parameter called `name`. What it points at follows
    /// from `type` as for KORVASchemaTypeI::setChildObject. An empty or unknown name does nothing.
    /// @throws ZELAssertError `name` is null
    /// @throws KORVAException 0xEA47C21F: the value does not fit; 0xEA41BF21: a null message has
    ///     no such parameter
    virtual void setChildObject(const char* name, void* value, const ObjectType& type) = 0;

    /// The message's XML name, a constant of the class.
    virtual const char* getMessageName() const = 0;

    /// The bus header. With a `registry` a missing header is created and registered there; without
    /// one the result may be null.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAHalyardHeader* getHalyardHeader(KORVAObjectRegistryI* registry);

    /// Stores the pointer as it stands; a registry keeps the header alive.
    void setHalyardHeader(KORVAHalyardHeader* header);

    /// Takes a reference on `registry`, which may be null, and drops the one held before.
    void setObjectRegistry(KORVAObjectRegistryI* registry);

    /// The registry of this message's objects, made on the first call; never null.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAObjectRegistryI* getObjectRegistry();

protected:
    KORVAMessageI() noexcept;

private:
    ZELSmartPointer<KORVAObjectRegistryI> m_objectRegistry;
    KORVAHalyardHeader* m_halyardHeader;
};
