/// How an object of one model becomes an object of another, in either direction.
#pragma once

#include "bridges/ObjectModels.h"
#include "core/CycleCheck.h"
#include "types/Numbers.h"
#include "types/PlainTypes.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVATARNSupport.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELOwner.h>
#include <zel/ZELThrow.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>
#include <vector>

namespace korva {

/// One deep copy from the model `Source` to the model `Target`. Objects whose children are still to
/// be copied stand on a list, not on the call stack, so that depth is bounded by memory only: each
/// operation copies what it is asked for and leaves what lies deeper to `run`.
///
/// All that is made belongs to the registry, also after a failure.
template <class Source, class Target>
class ObjectConversion {
public:
    using SourceObject = typename Source::Object;
    using SourceType = typename Source::ObjectType;
    using TargetObject = typename Target::Object;
    using TargetType = typename Target::ObjectType;

    explicit ObjectConversion(typename Target::Registry& registry) : m_registry(registry) {}

    /// Copies what has been left; nothing is left then.
    void run() {
        while (!m_pending.empty()) {
            const Pending next = m_pending.back();
            m_pending.pop_back();
            m_depth = next.depth;
            if (m_watch.isDue(m_depth)) Source::refuseCycle(*next.source);
            copyChildren(*next.source, *next.target);
        }
    }

    /// @throws ZELAssertError the type is unknown in one of the models
    static TargetType targetTypeOf(SourceType type) {
        Source::assertKnown(type);
        const TargetType target = KORVATARNSupport::getObjectType(type);
        Target::assertKnown(target);
        return target;
    }

    TargetObject& createObject(TargetType type) {
        ZELOwner<TargetObject> object(Target::Factory::getInstance().create(type));
        if (object == nullptr) ZEL_THROW(ZELOutOfMemoryError());
        return *m_registry.own(std::move(object));
    }

    TargetObject& createFrom(const SourceObject& source) {
        const SourceType type = source.getObjectType();
        KnownType& known = m_known[static_cast<std::uint32_t>(type) % knownTypes];
        if (known.source != type || type == SourceType{}) known = {type, targetTypeOf(type)};
        TargetObject& target = createObject(known.target);
        m_pending.push_back({&source, &target, m_depth + 1});
        return target;
    }

    void copyChildren(const SourceObject& source, TargetObject& target) {
        const SourceType sourceType = source.getObjectType();
        if (Source::takesFaultDetailAlone && sourceType == Source::faultDetail) {
            copyUndocumentedFaultDetail(source, target);
            return;
        }
        typename Source::Walk walk(source, m_names);
        const char* name = nullptr;
        SourceType type{};
        void* value = nullptr;
        while (walk.next(name, type, value)) {
            // Two shapes of details may share one name; the one without a schema comes below.
            if (sourceType == Source::fault && isFaultDetailArray(type, value)) continue;
            copyChild(target, walk.isArray() ? elementName : name, type, value);
        }
        if (sourceType == Source::fault) copyUndocumentedFaultDetails(source, target);
    }

    void copyChild(TargetObject& target, const char* name, SourceType type, void* value) {
        if (!Source::Factory::isGeneratedType(type))
            copyNative(target, name, type, value);
        else if (Source::isArrayType(type))
            copyArray(target, name, asObject(value));
        else
            copyGenerated(target, name, asObject(value));
    }

    void copyArray(TargetObject& target, const char* name, const SourceObject& value) {
        if (TargetObject* const array = Target::childArray(target, name, m_registry))
            m_pending.push_back({&value, array, m_depth + 1});
    }

    void copyGenerated(TargetObject& target, const char* name, const SourceObject& value) {
        TargetObject& object = createFrom(value);
        target.setChildObject(name, &object, object.getObjectType(), nullptr);
    }

    void copyNative(TargetObject& target, const char* name, SourceType type, void* value) {
        if (Source::Factory::isString(type)) {
            copyString(target, name, static_cast<const char*>(value));
            return;
        }
        const types::FieldKind kind = types::kindOf(type);
        if (kind == types::FieldKind::Binary) {
            copyBase64(target, name, *static_cast<const typename Source::Base64Binary*>(value));
            return;
        }
        if (types::visitValue(kind, [&](auto copy) {
                copy = types::valueAt<decltype(copy)>(value);
                target.setChildObject(name, &copy, typeOf(copy), nullptr);
            }))
            return;
        if (type == Source::faultDetail || type == Source::faultDetailArray ||
            type == Source::fault)
            ZEL_ASSERT_NAMED(false, "Not implemented");
        ZEL_ASSERT_NAMED(false, "Unexpectd type");  // as published
    }

    void copyString(TargetObject& target, const char* name, const char* value) {
        TargetType type{};
        void* const copy = copyStringValue(value, type);
        target.setChildObject(name, copy, type, nullptr);
    }

    /// A copy as setChildObject takes it, with its type.
    void* copyStringValue(const char* value, TargetType& type) {
        if (Source::CharStreamable::isCharStreamable(value)) {
            type = TargetObject::eCharStreamable;
            return const_cast<char*>(copyCharStreamable(value));
        }
        auto& copy = make<typename Target::String>();
        const std::size_t length = std::strlen(value);
        copy.buffer()->reserve(length);
        copy.appendChars(value, length);
        type = TargetObject::eString;
        return copy.buffer();
    }

    const char* copyCharStreamable(const char* value) {
        const auto& source = *reinterpret_cast<const typename Source::CharStreamable*>(value);
        auto& text = make<BRIMMemoryOutputStream>();
        source >> text;
        auto& copy = make<typename Target::CharStreamable>();
        copy.initialize(text.str(), false);
        copy.setIsContentId(source.getIsContentId());
        return copy.asCharStar();
    }

    void copyBase64(TargetObject& target, const char* name,
                    const typename Source::Base64Binary& value) {
        const bool isSizeKnown = value.str() != nullptr && value.pcount() != 0;
        auto& bytes = isSizeKnown ? make<BRIMMemoryOutputStream>(value.pcount() + 1)
                                  : make<BRIMMemoryOutputStream>();
        Source::writeBytes(value, bytes);
        auto& copy = make<typename Target::Base64Binary>();
        if (bytes.pcount() != 0) copy.reference(bytes.str(), bytes.pcount());
        copy.setIsContentId(value.getIsContentId());
        target.setChildObject(name, &copy, TargetObject::eBase64Binary, nullptr);
    }

    /// Copies one detail without a schema into another.
    void copyUndocumentedFaultDetail(const SourceObject& source, TargetObject& target) {
        for (const char* const name : {"errorCode", "severity"})
            if (const void* const value = childOf(source, name))
                copyString(target, name, static_cast<const char*>(value));
        constexpr const char* messages = "message";
        if (void* const value = childOf(source, messages))
            copyArray(target, messages, asObject(value));
    }

private:
    struct Pending {
        const SourceObject* source;
        TargetObject* target;
        std::size_t depth;
    };

    /// Types that have been looked up; objects of few types make up most of what there is.
    struct KnownType {
        SourceType source{};
        TargetType target{};
    };
    static constexpr std::uint32_t knownTypes = 128;

    /// Arrays take any name for their elements but the empty one.
    static constexpr const char* elementName = "dummy";

    // What values are handed over as, whatever their declared types.
    static constexpr TargetType typeOf(int) { return TargetObject::eInt; }
    static constexpr TargetType typeOf(float) { return TargetObject::eDecimal; }
    static constexpr TargetType typeOf(bool) { return TargetObject::eBoolean; }

    static const SourceObject& asObject(const void* value) {
        return *static_cast<const SourceObject*>(value);
    }

    static void* childOf(const SourceObject& object, const char* name) {
        // Reading without forWrite changes nothing.
        return const_cast<SourceObject&>(object).getChildObject(name, false);
    }

    static bool isFaultDetailArray(SourceType type, const void* value) {
        return Source::Factory::isGeneratedType(type) &&
               asObject(value).getObjectType() == Source::faultDetailArray;
    }

    void copyUndocumentedFaultDetails(const SourceObject& source, TargetObject& target) {
        const auto* const fault = dynamic_cast<const typename Source::Fault*>(&source);
        if (fault == nullptr) return;
        const auto* const details = fault->getUndocumentedDetail();
        if (details == nullptr) return;
        TargetObject* const array = Target::childArray(target, undocumentedDetailName, m_registry);
        if (array == nullptr) return;
        const std::size_t count = details->size();
        for (std::size_t i = 0; i < count; ++i) {
            const auto* const detail = details->at(i);
            if (detail == nullptr) continue;
            TargetObject& copy = createObject(Target::faultDetail);
            copyUndocumentedFaultDetail(*detail, copy);
            array->setChildObject(elementName, &copy, Target::faultDetail, nullptr);
        }
    }

    template <class X, class... Arguments>
    X& make(Arguments... arguments) {
        return *m_registry.template make<X>(arguments...);
    }

    typename Target::Registry& m_registry;
    std::vector<Pending> m_pending;
    std::size_t m_depth = 0;  ///< of the object whose children are being copied
    DepthWatch m_watch;
    std::vector<const char*> m_names;  ///< of the object whose children are being copied
    KnownType m_known[knownTypes];
};

/// Runs `action` on a new conversion, and then all that it left to be copied.
template <class Conversion, class Registry, class Action>
auto convert(Registry& registry, const char* function, Action action) {
    ZEL_TRY {
        Conversion conversion(registry);
        if constexpr (std::is_void_v<decltype(action(conversion))>) {
            action(conversion);
            conversion.run();
        } else {
            const auto result = action(conversion);
            conversion.run();
            return result;
        }
    }
    ZEL_CATCH(function);
}

}  // namespace korva
