// What the passes decide, on the sample vocabulary.
#include "generator/passes/Passes.h"
#include "tests/generator/Model.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <bit>
#include <set>

namespace korva::schemac {
namespace {

using namespace model;

class Decisions : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(vocabulary.diagnostics.text(), ""); }

    const Model vocabulary = sample();
};

template <class Item>
std::vector<std::string> namesOf(const std::vector<const Item*>& items) {
    std::vector<std::string> out;
    for (const Item* item : items)
        out.push_back(item->name);
    return out;
}

using Names = std::vector<std::string>;

TEST(Identity, IsTheCrc32OfTheName) {
    EXPECT_EQ(passes::identityOf("schedule"), 0x5A3811FB);
    EXPECT_EQ(static_cast<std::uint32_t>(passes::identityOf("dailyPeriod")), 0xC80D96B0U);
    EXPECT_EQ(passes::identityOf("value"), 0x1D775834);
    EXPECT_EQ(passes::identityOf("asynchRun_Request"), 0x205E290F);
    EXPECT_EQ(passes::identityOf(""), 0);
}

TEST_F(Decisions, TellFamiliesApart) {
    EXPECT_EQ(vocabulary.type("account").kind, TypeKind::Class);
    EXPECT_EQ(vocabulary.type("baseProp").kind, TypeKind::Class);
    EXPECT_EQ(vocabulary.type("stringProp").kind, TypeKind::Property);
    EXPECT_EQ(vocabulary.type("accountArray").kind, TypeKind::Array);
    EXPECT_EQ(vocabulary.type("accessEnum").kind, TypeKind::Enum);
    EXPECT_EQ(vocabulary.type("guid").kind, TypeKind::RestrictedString);
}

TEST_F(Decisions, TakeATextWithOpenWordsForAnEnumeration) {
    EXPECT_EQ(vocabulary.type("unknownEnum").kind, TypeKind::Enum);
    EXPECT_EQ(vocabulary.type("unknownEnum").openWords, kUnknownCount);
    EXPECT_EQ(vocabulary.type("accessEnum").openWords, 2);
    EXPECT_TRUE(vocabulary.type("folder").openFields);
    EXPECT_FALSE(vocabulary.type("account").openFields);
}

TEST_F(Decisions, GiveEachFieldItsKindAndDeclaredType) {
    struct Expected {
        const char* name;
        FieldKind kind;
        std::int32_t type;
    };
    const Expected expected[] = {
        {"access", FieldKind::Object, vocabulary.type("accessEnum").identity},
        {"active", FieldKind::Boolean, 7},
        {"born", FieldKind::Text, 6},
        {"class", FieldKind::Text, 10},
        {"default", FieldKind::Int, 2},
        {"friends", FieldKind::EmbeddedArray, vocabulary.type("accountArray").identity},
        {"id", FieldKind::Object, vocabulary.type("guid").identity},
        {"picture", FieldKind::Binary, 8},
        {"quota", FieldKind::Int, 3},
        {"rate", FieldKind::Float, 9},
        {"share", FieldKind::Float, 4},
        {"tags", FieldKind::EmbeddedArray, vocabulary.type("stringArray").identity},
        {"text", FieldKind::Text, 1},
        {"wake", FieldKind::Text, 5},
    };
    ASSERT_EQ(vocabulary.type("account").fields.size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        const Field& field = vocabulary.type("account").fields[i];
        EXPECT_EQ(field.name, expected[i].name);
        EXPECT_EQ(field.kind, expected[i].kind) << field.name;
        EXPECT_EQ(field.objectType, expected[i].type) << field.name;
        EXPECT_EQ(field.identity, passes::identityOf(field.name)) << field.name;
    }
}

TEST_F(Decisions, KeepArraysOfMessagesByPointer) {
    const Message& request = vocabulary.message("query_1_Request");
    EXPECT_EQ(request.params.at(1).name, "accounts");
    EXPECT_EQ(request.params.at(1).kind, FieldKind::Object);
    EXPECT_TRUE(request.params.at(1).createsOnGet);
}

TEST_F(Decisions, CreateOnGetOnlyWhatIsConcrete) {
    EXPECT_FALSE(vocabulary.field("baseClass", "owner").createsOnGet);
    EXPECT_TRUE(vocabulary.field("baseClass", "name").createsOnGet);
    EXPECT_FALSE(vocabulary.message("query_1_Request").params.at(0).createsOnGet);
    EXPECT_FALSE(vocabulary.field("account", "text").createsOnGet);
}

TEST_F(Decisions, NameClassesAccessorsAndMembers) {
    EXPECT_EQ(vocabulary.type("account").className, "KORVAAccount");
    EXPECT_EQ(vocabulary.field("account", "born").stem, "Born");
    EXPECT_EQ(vocabulary.field("account", "born").member, "born");
    EXPECT_EQ(vocabulary.field("account", "class").member, "class_");
    EXPECT_EQ(vocabulary.field("account", "default").member, "default_");
    EXPECT_EQ(vocabulary.message("CMS_query_2_Request").className, "KORVACMS_query_2_Request");
    EXPECT_EQ(vocabulary.message("query_1_Reply").className, "KORVAQuery_1_Reply");
    EXPECT_EQ(vocabulary.schema.portTypes.at(0).className, "KORVAServicePortType");
}

TEST_F(Decisions, NameEnumeratorsAfterTheirWords) {
    const std::vector<Word>& words = vocabulary.type("accessEnum").words;
    ASSERT_EQ(words.size(), 5U);
    EXPECT_EQ(words[0].enumerator, "eKORVAGrant");
    EXPECT_EQ(words[2].enumerator, "eKORVADeny_all");
    EXPECT_EQ(words[3].enumerator, "eKORVADeny_all_2");
    EXPECT_EQ(words[4].enumerator, "eKORVAGr__er");
    EXPECT_EQ(words[4].identity, passes::identityOf("gr\xC3\xB6\xC3\x9F"
                                                    "er"));
}

TEST_F(Decisions, PutBasesBeforeDerivedClasses) {
    EXPECT_EQ(namesOf(vocabulary.schema.classes),
              (Names{"baseClass", "baseProp", "schemaInfo", "folder", "account"}));
    EXPECT_EQ(vocabulary.type("account").depth, 2U);
    EXPECT_EQ(vocabulary.type("account").inheritedFields, 2U);
}

TEST_F(Decisions, PlaceFieldsBehindInheritedOnes) {
    const Type& account = vocabulary.type("account");
    EXPECT_EQ(account.slots, 14U);
    EXPECT_EQ(account.arrays, 2U);
    EXPECT_EQ(account.fields[0].place, 2U);
    EXPECT_EQ(account.fields[5].name, "friends");
    EXPECT_EQ(account.fields[5].place, 0U);
    EXPECT_EQ(account.fields[6].place, 7U);
    EXPECT_EQ(vocabulary.type("folder").slots, 2U);
}

TEST_F(Decisions, SortNamesByTheirBytes) {
    const Names names = namesOf(vocabulary.schema.byName);
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    EXPECT_EQ(names.size(), vocabulary.schema.types.size());
    EXPECT_EQ(namesOf(vocabulary.schema.messagesByName),
              (Names{"CMS_query_2_Reply", "CMS_query_2_Request", "add_Reply", "add_Request",
                     "query_1_Reply", "query_1_Request"}));
}

TEST_F(Decisions, SortTypesByUnsignedAndMessagesBySignedIdentity) {
    const auto& types = vocabulary.schema.byIdentity;
    EXPECT_TRUE(std::is_sorted(types.begin(), types.end(), [](const Type* l, const Type* r) {
        return static_cast<std::uint32_t>(l->identity) < static_cast<std::uint32_t>(r->identity);
    }));
    EXPECT_LT(types.back()->identity, 0);
    const auto& messages = vocabulary.schema.messagesByIdentity;
    EXPECT_TRUE(std::is_sorted(
        messages.begin(), messages.end(),
        [](const Message* l, const Message* r) { return l->identity < r->identity; }));
    EXPECT_LT(messages.front()->identity, 0);
}

TEST_F(Decisions, KeyArraysByTheirElementOnlyWhenTheyBearItsName) {
    EXPECT_EQ(vocabulary.type("accountArray").arrayKey, "account[]");
    EXPECT_EQ(vocabulary.type("accountSet").arrayKey, "");
    EXPECT_EQ(vocabulary.type("stringArray").arrayKey, "");
    EXPECT_EQ(namesOf(vocabulary.schema.arraysByKey), Names{"accountArray"});
}

TEST_F(Decisions, CollectEachWordOnceInTheWordTable) {
    std::set<std::string> texts;
    std::uint32_t before = 0;
    for (const TableWord& word : vocabulary.schema.words) {
        EXPECT_TRUE(texts.insert(word.text).second) << word.text;
        const auto* bytes = reinterpret_cast<const Bytef*>(word.text.data());
        const auto crc =
            static_cast<std::uint32_t>(crc32(0, bytes, static_cast<uInt>(word.text.size())));
        EXPECT_EQ(static_cast<std::uint32_t>(word.identity), crc) << word.text;
        EXPECT_LT(before, crc) << word.text;
        before = crc;
    }
    for (const char* text : {"account", "born", "deny-all", "below", "value", "halyardHeader"}) {
        EXPECT_TRUE(texts.contains(text)) << text;
    }
    EXPECT_FALSE(texts.contains("query_1_Request"));
    EXPECT_FALSE(texts.contains("query"));
}

TEST_F(Decisions, LeaveAMessageOfHeadersOut) {
    EXPECT_EQ(vocabulary.message("header").className, "");
    EXPECT_EQ(vocabulary.schema.messagesByName.size(), vocabulary.schema.messages.size() - 1);
}

TEST_F(Decisions, JoinOverloadsByTheNamesOfTheirInputs) {
    const PortType& portType = vocabulary.schema.portTypes.at(0);
    EXPECT_EQ(portType.boundNamespace, "http://bus.korva.example/schemas/service/1");
    ASSERT_EQ(portType.rows.size(), 4U);
    EXPECT_EQ(portType.rows[1].name, "add");
    EXPECT_EQ(portType.rows[2].requestClass, "KORVAQuery_1_Request");
    EXPECT_EQ(portType.rows[2].replyClass, "KORVAQuery_1_Reply");
    EXPECT_EQ(portType.rows[2].action, "http://bus.korva.example/service/.session");
    EXPECT_EQ(portType.rows[3].requestClass, "KORVACMS_query_2_Request");
    EXPECT_EQ(portType.rows[3].action, "http://bus.korva.example/service/");
}

TEST_F(Decisions, BindTheMessagesWithoutNameToTheActionOfTheFirstOperation) {
    const PortType& portType = vocabulary.schema.portTypes.at(0);
    const OperationRow& row = portType.rows.at(0);
    EXPECT_EQ(row.name, "");
    EXPECT_EQ(row.requestClass, "KORVA_Null_Request");
    EXPECT_EQ(row.replyClass, "KORVA_Null_Reply");
    EXPECT_EQ(row.action, portType.operations.front().action);
}

TEST_F(Decisions, FindEachFieldByTheLowestBitsOfItsCrc) {
    for (const Type* type : vocabulary.schema.byName) {
        const std::vector<std::size_t>& table = type->hashes;
        EXPECT_TRUE(std::has_single_bit(table.size())) << type->name;
        EXPECT_GT(table.size(), 2 * type->fields.size()) << type->name;
        for (std::size_t position = 0; position < type->fields.size(); ++position) {
            std::size_t i = static_cast<std::uint32_t>(type->fields[position].identity);
            while (table[i % table.size()] != position + 1) {
                ASSERT_NE(table[i % table.size()], 0U) << type->fields[position].name;
                ++i;
            }
        }
    }
}

template <class Item>
void expectIndexed(const TopBitsIndex& index, const std::vector<Item>& items,
                   std::int32_t (*identity)(const Item&)) {
    ASSERT_EQ(index.starts.size(), (std::size_t{1} << index.bits) + 1);
    EXPECT_EQ(index.starts.front(), 0U);
    EXPECT_EQ(index.starts.back(), items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        const std::size_t top = static_cast<std::uint32_t>(identity(items[i])) >> (32 - index.bits);
        EXPECT_LE(index.starts[top], i);
        EXPECT_LT(i, index.starts[top + 1]);
    }
}

TEST_F(Decisions, IndexTypesAndWordsByTheTopBitsOfTheirIdentities) {
    const Schema& schema = vocabulary.schema;
    EXPECT_EQ(schema.typeIndex.bits, 10U);
    EXPECT_EQ(schema.wordIndex.bits, 12U);
    expectIndexed<const Type*>(schema.typeIndex, schema.byIdentity,
                               [](const Type* const& type) { return type->identity; });
    expectIndexed<TableWord>(schema.wordIndex, schema.words,
                             [](const TableWord& word) { return word.identity; });
}

TEST_F(Decisions, GiveAParameterOfOverloadsTheTypeOfTheFirst) {
    std::map<std::string, std::int32_t> types;
    for (const OperationParam& row : vocabulary.schema.portTypes.at(0).params) {
        EXPECT_TRUE(types.emplace(row.key, row.param->objectType).second) << row.key;
    }
    EXPECT_EQ(types.size(), 7U);
    EXPECT_EQ(types.at("query-most"), 2);
    EXPECT_EQ(types.at("query-id"), vocabulary.type("guid").identity);
}

}  // namespace
}  // namespace korva::schemac
