/// What a conversion between the two object models needs to know of each.
#pragma once

#include "core/ChildWalk.h"
#include "core/CycleCheck.h"

#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAUndocumentedFaultDetail.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_String.h>
#include <tarn/TARNBase64Binary.h>
#include <tarn/TARNObjectRegistryI.h>
#include <tarn/TARNSOAPFault.h>
#include <tarn/TARNSchemaTypesFactory.h>
#include <tarn/TARNUndocumentedFaultDetail.h>
#include <tarn/TARNUndocumentedFaultDetailArray.h>
#include <tarn/TARN_CharStreamable.h>
#include <tarn/TARN_String.h>

#include <cstddef>
#include <vector>

class BRIMOutputStream;

namespace korva {

/// The name under which the details of a fault that no schema describes are asked for.
inline constexpr const char* undocumentedDetailName = "undocumentedDetail";

/// This library's own model.
struct KorvaModel {
    using Object = KORVASchemaTypeI;
    using ObjectType = KORVASchemaTypeI::ObjectType;
    using Factory = KORVASchemaTypesFactory;
    using Registry = KORVAObjectRegistryI;
    using String = KORVA_String;
    using CharStreamable = KORVA_CharStreamable;
    using Base64Binary = KORVAXSBase64Binary;
    using Fault = KORVASOAPFault;

    static constexpr ObjectType faultDetail = KORVASchemaTypeI::eKORVAUndocumentedFaultDetail;
    static constexpr ObjectType faultDetailArray =
        KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray;
    static constexpr ObjectType fault = KORVASchemaTypeI::eKORVASOAPFault;

    /// The details without a schema refuse to be walked; only their fault can hand them over.
    static constexpr bool takesFaultDetailAlone = false;

    /// The children that are set; an array's have no names that are texts.
    class Walk {
    public:
        Walk(const Object& object, std::vector<const char*>& /*names*/) : m_walk(object, true) {}

        bool isArray() const { return m_walk.isArray(); }

        bool next(const char*& name, ObjectType& type, void*& value) {
            Child child;
            do {
                if (!m_walk.next(child)) return false;
            } while (child.value == nullptr);
            name = child.name;
            type = child.type;
            value = child.value;
            return true;
        }

    private:
        ChildWalk m_walk;
    };

    /// @throws ZELAssertError the type is unknown
    static void assertKnown(ObjectType type);

    /// @throws KORVAException 0xEA4F0005: an object below `root`, or it itself, holds itself
    static void refuseCycle(const Object& root) { korva::refuseCycle(root); }

    static bool isArrayType(ObjectType type) { return Factory::isArrayType(type); }

    /// The array child of `target` that elements go to; null when there is no child of this name.
    static Object* childArray(Object& target, const char* name, Registry& registry);

    /// Writes the bytes that a value stands for.
    static void writeBytes(const Base64Binary& value, BRIMOutputStream& out);
};

/// The platform's other model. Its children are read by the names of those that are set.
struct TarnModel {
    using Object = TARNSchemaTypeI;
    using ObjectType = TARNSchemaTypeI::ObjectType;
    using Factory = TARNSchemaTypesFactory;
    using Registry = TARNObjectRegistryI;
    using String = TARN_String;
    using CharStreamable = TARN_CharStreamable;
    using Base64Binary = TARNBase64Binary;
    using Fault = TARNSOAPFault;

    static constexpr ObjectType faultDetail = TARNSchemaTypeI::eTARNUndocumentedFaultDetail;
    static constexpr ObjectType faultDetailArray =
        TARNSchemaTypeI::eTARNUndocumentedFaultDetailArray;
    static constexpr ObjectType fault = TARNSchemaTypeI::eTARNSOAPFault;

    static constexpr bool takesFaultDetailAlone = true;

    class Walk {
    public:
        Walk(const Object& object, std::vector<const char*>& names)
            // Reading without forWrite changes nothing.
            : m_object(const_cast<Object&>(object)),
              m_isArray(isArrayType(object.getObjectType())),
              m_names(names) {
            m_names.clear();
            object.getChildObjectNames(m_names, false);
        }

        bool isArray() const { return m_isArray; }

        bool next(const char*& name, ObjectType& type, void*& value) {
            while (m_position != m_names.size()) {
                name = m_names[m_position++];
                value = m_object.getChildObject(name, false);
                if (value == nullptr) continue;
                type = m_object.getChildType(name);
                return true;
            }
            return false;
        }

    private:
        Object& m_object;
        const bool m_isArray;
        std::vector<const char*>& m_names;
        std::size_t m_position = 0;
    };

    /// @throws ZELAssertError the type is unknown
    static void assertKnown(ObjectType type);

    /// @throws KORVAException 0xEA4F0005: an object below `root`, or it itself, holds itself
    static void refuseCycle(const Object& root);

    static bool isArrayType(ObjectType type) { return Factory::isArrayType(type); }

    /// As above; the details of a fault are made by the fault.
    static Object* childArray(Object& target, const char* name, Registry& registry);

    static void writeBytes(const Base64Binary& value, BRIMOutputStream& out);
};

}  // namespace korva
