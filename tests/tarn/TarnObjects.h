/// Short ways to objects of the second object model.
#pragma once

#include <tarn/TARNBase64Binary.h>
#include <tarn/TARNObjectRegistry.h>
#include <tarn/TARNSchemaTypeI.h>
#include <tarn/TARNSchemaTypesFactory.h>
#include <tarn/TARN_CharStreamable.h>
#include <tarn/TARN_String.h>
#include <zel/ZELOwner.h>
#include <zel/ZELSmartPointer.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace korva::test {

using TarnType = TARNSchemaTypeI::ObjectType;

constexpr TarnType tarnType(const char* xmlName) {
    return TARNSchemaTypesFactory::identityOf(xmlName);
}

/// The name of the element of an array at a one-based position.
inline const char* elementName(std::size_t index) {
    return reinterpret_cast<const char*>(static_cast<std::uintptr_t>(index));
}

/// Makes objects and values, which live as long as this.
class TarnObjects {
public:
    const ZELSmartPointer<TARNObjectRegistry> registry{TARNObjectRegistry::create()};

    TARNSchemaTypeI& make(TarnType type) {
        return *registry->own(ZELOwner(TARNSchemaTypesFactory::getInstance().create(type)));
    }
    TARNSchemaTypeI& make(const char* xmlName) { return make(tarnType(xmlName)); }

    /// A text as setChildObject takes it.
    ZELByteBuffer* text(std::string_view characters) {
        TARN_String& string = *registry->make<TARN_String>();
        string.appendChars(characters.data(), characters.size());
        return string.buffer();
    }

    TARNBase64Binary& binary(std::string_view bytes) {
        TARNBase64Binary& value = *registry->make<TARNBase64Binary>();
        value.reference(bytes.data(), bytes.size());
        return value;
    }

    TARN_CharStreamable& streamed(const char* characters) {
        TARN_CharStreamable& value = *registry->make<TARN_CharStreamable>();
        value.initialize(characters, false);
        return value;
    }

    void setText(TARNSchemaTypeI& object, const char* name, std::string_view characters) {
        object.setChildObject(name, text(characters), TARNSchemaTypeI::eString, nullptr);
    }

    /// A new object as the child of another.
    TARNSchemaTypeI& addChild(TARNSchemaTypeI& object, const char* name, TarnType type) {
        TARNSchemaTypeI& child = make(type);
        object.setChildObject(name, &child, type, nullptr);
        return child;
    }
};

inline const char* textOf(TARNSchemaTypeI& object, const char* name) {
    return static_cast<const char*>(object.getChildObject(name, false));
}

inline TARNSchemaTypeI* childOf(TARNSchemaTypeI& object, const char* name) {
    return static_cast<TARNSchemaTypeI*>(object.getChildObject(name, false));
}

inline std::vector<std::string> namesOf(const TARNSchemaTypeI& object, bool includeNull) {
    std::vector<const char*> names;
    object.getChildObjectNames(names, includeNull);
    return {names.begin(), names.end()};
}

/// An object that the factory cannot make: its type and its children are what the test says.
class FreeTarnObject : public TARNSchemaTypeI {
public:
    struct FreeChild {
        const char* name;
        ObjectType type;
        void* value;
    };

    FreeTarnObject(ObjectType type, std::vector<FreeChild> children)
        : m_type(type), m_children(std::move(children)) {}

    ObjectType getObjectType() const override { return m_type; }
    std::size_t setChildObject(const char*, void*, const ObjectType&, std::size_t*) override {
        return 0;
    }
    void* getChildObject(const char* name, bool) override {
        const FreeChild* const child = find(name);
        return child != nullptr ? child->value : nullptr;
    }
    ObjectType getChildType(const char* name) const override {
        const FreeChild* const child = find(name);
        return child != nullptr ? child->type : e_Unknown;
    }
    void getChildObjectNames(std::vector<const char*>& names, bool) const override {
        for (const FreeChild& child : m_children)
            names.push_back(child.name);
    }
    bool isa(ObjectType type) const override { return type == m_type; }
    std::size_t getChildObjectCount() const override { return m_children.size(); }

private:
    const FreeChild* find(const char* name) const {
        for (const FreeChild& child : m_children)
            if (std::strcmp(child.name, name) == 0) return &child;
        return nullptr;
    }

    const ObjectType m_type;
    const std::vector<FreeChild> m_children;
};

}  // namespace korva::test
