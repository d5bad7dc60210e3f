#include "tarn/TARNSchemaTypeI.h"

#include "types/Numbers.h"
#include "types/PlainTypes.h"

#include <tarn/TARNBase64Binary.h>
#include <tarn/TARNSOAPFault.h>
#include <tarn/TARNSchemaTypesFactory.h>
#include <tarn/TARN_CharStreamable.h>
#include <zel/ZELFrame.h>

#include <cstring>

using Factory = TARNSchemaTypesFactory;

namespace {

bool equalTexts(const char* left, const char* right) {
    const bool isStreamed = TARN_CharStreamable::isCharStreamable(left);
    if (isStreamed != TARN_CharStreamable::isCharStreamable(right)) return false;
    if (!isStreamed) return std::strcmp(left, right) == 0;
    return reinterpret_cast<const TARN_CharStreamable*>(left)->sharesSourceWith(
        *reinterpret_cast<const TARN_CharStreamable*>(right));
}

/// One comparison: pairs still to be compared wait in a list instead of on the stack.
class Comparison {
public:
    bool run(const TARNSchemaTypeI& left, const TARNSchemaTypeI& right) {
        m_pending.push_back({&left, &right});
        while (!m_pending.empty()) {
            const Pair next = m_pending.back();
            m_pending.pop_back();
            if (next.left != next.right && !equalObjects(*next.left, *next.right)) return false;
        }
        return true;
    }

private:
    struct Pair {
        const TARNSchemaTypeI* left;
        const TARNSchemaTypeI* right;
    };

    bool equalObjects(const TARNSchemaTypeI& left, const TARNSchemaTypeI& right) {
        const TARNSchemaTypeI::ObjectType type = left.getObjectType();
        if (type != right.getObjectType()) return false;
        if (type == TARNSchemaTypeI::eTARNSOAPFault &&
            !equalChildren(left, right, TARNSOAPFault::undocumentedDetailName))
            return false;
        m_names.clear();
        left.getChildObjectNames(m_names, true);
        if (m_names.size() != right.getChildObjectCount()) return false;
        for (const char* const name : m_names)
            if (!equalChildren(left, right, name)) return false;
        return true;
    }

    bool equalChildren(const TARNSchemaTypeI& left, const TARNSchemaTypeI& right,
                       const char* name) {
        // Reading without forWrite changes nothing.
        const auto read = [name](const TARNSchemaTypeI& object) {
            return const_cast<TARNSchemaTypeI&>(object).getChildObject(name, false);
        };
        const void* const one = read(left);
        const void* const other = read(right);
        if (one == nullptr || other == nullptr) return one == other;
        return equalValues(one, other, left.getChildType(name));
    }

    bool equalValues(const void* left, const void* right, TARNSchemaTypeI::ObjectType type) {
        if (Factory::isString(type))
            return equalTexts(static_cast<const char*>(left), static_cast<const char*>(right));
        if (type == TARNSchemaTypeI::eBase64Binary)
            return static_cast<const TARNBase64Binary*>(left)->isEqualTo(
                *static_cast<const TARNBase64Binary*>(right));
        bool equal = true;
        if (!types::visitValue(types::kindOf(type), [&](auto value) {
                using Value = decltype(value);
                equal = types::valueAt<Value>(left) == types::valueAt<Value>(right);
            }))
            m_pending.push_back({static_cast<const TARNSchemaTypeI*>(left),
                                 static_cast<const TARNSchemaTypeI*>(right)});
        return equal;
    }

    std::vector<Pair> m_pending;
    std::vector<const char*> m_names;
};

}  // namespace

TARNSchemaTypeI::~TARNSchemaTypeI() = default;

bool TARNSchemaTypeI::isEqualTo(const TARNSchemaTypeI& other) const {
    ZEL_TRY {
        return Comparison().run(*this, other);
    }
    ZEL_CATCH("TARNSchemaTypeI::isEqualTo");
}
