/// Objects that no generated class could be.
#pragma once

#include <korva/KORVASchemaTypeI.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korva::test {

/// An object that is no generated one: its children are what the test says.
class FreeObject : public KORVASchemaTypeI {
public:
    struct FreeChild {
        const char* name;
        ObjectType type;
        void* value;
    };

    explicit FreeObject(std::vector<FreeChild> children) : m_children(std::move(children)) {}

    ObjectType getObjectType() const override { return eKORVAFolder; }
    const std::string& getGeneratedObjectName() const override { return m_name; }
    const char* generatedObjectName() const override { return m_name.c_str(); }
    void* getChildObject(const char* name, bool) override {
        const FreeChild* const child = find(name);
        return child != nullptr ? child->value : nullptr;
    }
    ObjectType getChildType(const char* name) const override {
        const FreeChild* const child = find(name);
        return child != nullptr ? child->type : e_Unknown;
    }
    std::size_t setChildObject(const char*, void*, const ObjectType&, std::size_t*) override {
        return 0;
    }
    void getChildObjectNames(std::vector<const char*>& names, bool) const override {
        for (const FreeChild& child : m_children)
            names.push_back(child.name);
    }
    bool isa(ObjectType type) const override { return type == getObjectType(); }
    std::size_t getChildObjectCount() const override { return m_children.size(); }

private:
    const FreeChild* find(const char* name) const {
        for (const FreeChild& child : m_children)
            if (std::string_view(child.name) == name) return &child;
        return nullptr;
    }

    std::vector<FreeChild> m_children;
    std::string m_name = "FreeObject";
};

}  // namespace korva::test
