#include "core/ObjectCopy.h"

#include "core/ArrayAccess.h"
#include "core/CycleCheck.h"
#include "core/ExactClass.h"
#include "core/Fields.h"
#include "core/Names.h"
#include "core/TextValue.h"

#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zel/ZELOwner.h>

#include <cstring>
#include <string>
#include <vector>

namespace korva {

namespace {

/// One deep copy: objects still to be copied wait in a list instead of on the stack.
class CopyJob {
public:
    explicit CopyJob(KORVAObjectRegistryI& registry) : m_registry(registry) {}

    void copyFields(const ClassDescriptor& descriptor, const Record& source, const Record& target) {
        if (descriptor.base != nullptr) copyFields(*descriptor.base, source, target);
        for (const FieldDescriptor& field : descriptor)
            copyField(field, source, target);
    }

    void copyArray(const KORVA_ArrayObject& source, KORVA_ArrayObject& target) {
        // Emptied first, so that no former element stays where the source has null.
        ArrayAccess::resize(target, 0);
        const std::size_t count = source.size();
        const ObjectType elementType = ArrayAccess::elementType(source);
        ArrayAccess::resize(target, count);
        for (std::size_t i = 0; i < count; ++i) {
            void* const element = ArrayAccess::slot(source, i);
            if (KORVASchemaTypesFactory::isString(elementType)) {
                const char* const text =
                    copyText(static_cast<const char*>(element), TextCopy::Free, m_registry);
                ArrayAccess::setSlot(target, i, const_cast<char*>(text));
            } else if (!KORVASchemaTypesFactory::isGeneratedType(elementType)) {
                ArrayAccess::setSlot(target, i, element);
            } else if (element != nullptr) {
                m_pending.push_back({static_cast<const KORVASchemaTypeI*>(element), elementType,
                                     m_depth + 1, nullptr, &target, i});
            }
        }
    }

    void run() {
        while (!m_pending.empty()) {
            const Pending next = m_pending.back();
            m_pending.pop_back();
            m_depth = next.depth;
            if (m_watch.isDue(m_depth)) refuseCycle(*next.source);
            KORVASchemaTypeI* const copy = copyObject(*next.source);
            const bool fits = copy->isa(next.expected);
            if (next.array != nullptr) {
                auto* const pCastedCopy = fits ? copy : nullptr;
                ZEL_ASSERT(pCastedCopy);
                ArrayAccess::setSlot(*next.array, next.position, copy);
            } else {
                if (!fits) copyDoesNotFit(next.expected);
                std::memcpy(next.slot, &copy, sizeof copy);
            }
        }
    }

private:
    /// An object whose copy goes to a slot of a record or of an array.
    struct Pending {
        const KORVASchemaTypeI* source;
        ObjectType expected;
        std::size_t depth;
        void* slot;
        KORVA_ArrayObject* array;
        std::size_t position;
    };

    [[noreturn]] static void copyDoesNotFit(ObjectType expected) {
        zel::assertionFailed(
            ("ZEL_ASSERT(copy.isa(KORVASchemaTypeI::e" + className(expected) + "));").c_str(),
            ZEL_LOCATION);
    }

    void copyField(const FieldDescriptor& field, const Record& source, const Record& target) {
        switch (field.kind) {
            case FieldKind::Object:
                if (const auto* child = load<const KORVASchemaTypeI*>(source, field.offset))
                    m_pending.push_back(
                        {child, field.type, m_depth + 1, at(target, field.offset), nullptr, 0});
                break;
            case FieldKind::Text:
                store(
                    target, field.offset,
                    copyText(load<const char*>(source, field.offset), TextCopy::Array, m_registry));
                break;
            case FieldKind::Binary:
                store(
                    target, field.offset,
                    copyBinary(load<const KORVAXSBase64Binary*>(source, field.offset), m_registry));
                break;
            case FieldKind::EmbeddedArray:
                copyArray(*static_cast<const KORVA_ArrayObject*>(at(source, field.offset)),
                          *static_cast<KORVA_ArrayObject*>(at(target, field.offset)));
                break;
            default:
                types::visitValue(field.kind, [&](auto value) {
                    store(target, field.offset, load<decltype(value)>(source, field.offset));
                });
                store(target, field.flagOffset, load<bool>(source, field.flagOffset));
        }
    }

    /// A registered copy whose own children wait in the list.
    KORVASchemaTypeI* copyObject(const KORVASchemaTypeI& source) {
        const TypeDescriptor* const type = findType(source.getObjectType());
        const bool exact = isExactly(source, type);
        const bool isClass = exact && type->fields != nullptr;
        const bool isArray = exact && type->elementType != KORVASchemaTypeI::e_Unknown;
        // What has no children is copied in one go, and an unknown type is refused there.
        if (!isClass && !isArray)
            return &KORVASchemaTypesFactory::getInstance().createCopy(source, m_registry);
        KORVASchemaTypeI* const copy = m_registry.own(ZELOwner<KORVASchemaTypeI>(type->create()));
        if (isClass)
            copyFields(*type->fields, *ClassDescriptor::recordOf(source),
                       *ClassDescriptor::recordOf(*copy));
        else
            copyArray(static_cast<const KORVA_ArrayObject&>(source),
                      static_cast<KORVA_ArrayObject&>(*copy));
        return copy;
    }

    KORVAObjectRegistryI& m_registry;
    std::vector<Pending> m_pending;
    std::size_t m_depth = 0;  ///< of the object that is being copied
    DepthWatch m_watch;
};

}  // namespace

void copyFields(const ClassDescriptor& descriptor, const KORVASchemaTypeI& source,
                const KORVASchemaTypeI& target, KORVAObjectRegistryI& registry) {
    ZEL_TRY {
        CopyJob job(registry);
        job.copyFields(descriptor, *ClassDescriptor::recordOf(source),
                       *ClassDescriptor::recordOf(target));
        job.run();
    }
    ZEL_CATCH(nullptr);
}

void copyArray(const KORVA_ArrayObject& source, KORVA_ArrayObject& target,
               KORVAObjectRegistryI& registry) {
    try {
        CopyJob job(registry);
        job.copyArray(source, target);
        job.run();
    } catch (...) {
        ArrayAccess::resize(target, 0);
        throw;
    }
}

}  // namespace korva
