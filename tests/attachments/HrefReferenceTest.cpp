#include "tests/support/ExpectThrow.h"

#include <korva/KORVAStringProp.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_HrefReference.h>

#include <gtest/gtest.h>

namespace {

using Object = KORVASchemaTypeI;

TEST(HrefReference, KeepsWhatItWasMadeFrom) {
    KORVAStringProp object;
    char id[] = "id";
    char name[] = "value";
    const KORVA_HrefReference reference(id, &object, name, Object::eString, 7);
    id[0] = name[0] = 'X';
    EXPECT_EQ(reference.getContentId(), "id");
    EXPECT_EQ(&reference.getObject(), &object);
    EXPECT_STREQ(reference.getName(), "value");
    EXPECT_EQ(reference.getType(), Object::eString);
    EXPECT_EQ(reference.getIndex(), 7u);
}

TEST(HrefReference, NullTextsAreEmpty) {
    KORVAStringProp object;
    const KORVA_HrefReference reference(nullptr, &object, nullptr, Object::eString, 0);
    EXPECT_EQ(reference.getContentId(), "");
    EXPECT_STREQ(reference.getName(), "");
}

TEST(HrefReference, NeedsAnObject) {
    EXPECT_ASSERTION(KORVA_HrefReference("id", nullptr, "value", Object::eString, 0),
                     "ZEL_ASSERT(m_obj);");
}

TEST(GetCid, GivesWhatStandsBehindTheScheme) {
    const char16_t* const href = u"cid:abc";
    EXPECT_EQ(KORVA_AttachmentHandler::getCid(href), href + 4);
    const char16_t* const one = u"cid::";
    EXPECT_EQ(KORVA_AttachmentHandler::getCid(one), one + 4);
    const char16_t* const twice = u"cid:cid:";
    EXPECT_EQ(KORVA_AttachmentHandler::getCid(twice), twice + 4);
}

TEST(GetCid, AnythingElseIsNoReference) {
    for (const char16_t* const href : {u"cid:", u"CID:abc", u"Cid:abc", u"cid", u"cid abc", u"",
                                       u" cid:abc", u"#abc", u"http://cid:abc"})
        EXPECT_EQ(KORVA_AttachmentHandler::getCid(href), nullptr);
    EXPECT_EQ(KORVA_AttachmentHandler::getCid(nullptr), nullptr);
}

}  // namespace
