/// The objects of the second object model that are a text.
#pragma once

#include <tarn/TARNSchemaTypeI.h>

namespace tarn {

struct TypeRow;

/// An enumeration or a restricted string. What words an enumeration has is not looked at.
class TextObject final : public TARNSchemaTypeI {
public:
    explicit TextObject(const TypeRow& type) : m_type(type) {}
    ~TextObject() override;

    ObjectType getObjectType() const override;
    std::size_t setChildObject(const char* name, void* value, const ObjectType& type,
                               std::size_t* index) override;
    void* getChildObject(const char* name, bool forWrite) override;
    ObjectType getChildType(const char* name) const override;
    void getChildObjectNames(std::vector<const char*>& names, bool includeNull) const override;
    bool isa(ObjectType type) const override;
    std::size_t getChildObjectCount() const override;

private:
    const TypeRow& m_type;
    void* m_text = nullptr;  ///< a const char*
};

}  // namespace tarn
