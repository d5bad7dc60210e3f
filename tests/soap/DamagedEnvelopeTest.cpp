// Envelopes that were damaged at random: whatever comes of it, it is told in the library's own way.
#include "tests/soap/Reading.h"
#include "tests/soap/SampleMessages.h"
#include "tests/support/Golden.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <brim/BRIMStreamError.h>
#include <korva/KORVAException.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <zel/ZELThrowable.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace {

using korva::test::Binding;
using korva::test::goldenEnvelope;
using korva::test::makeRunCall;

constexpr std::uint32_t seeds = 300;

/// What an envelope is made of, to be put where it does not belong.
const std::vector<std::string>& pieces() {
    static const std::vector<std::string> pieces{
        " xsi:nil=\"true\"",
        " href=\"cid:part\"",
        " href=\"part\"",
        " xsi:type=\"xs:int\"",
        " xsi:type=\"xs:boolean\"",
        " xsi:type=\"xs:base64Binary\"",
        " xsi:type=\"bus:schedule\"",
        " xsi:type=\"bus:baseClass\"",
        " xsi:type=\"bus:stringArrayProp\"",
        " xsi:type=\"bus:nothing\"",
        " xsi:type=\"nowhere:int\"",
        " xsi:type=\"SOAP-ENC:Array\"",
        " SOAP-ENC:arrayType=\"bus:option[4000000000]\"",
        " SOAP-ENC:arrayType=\"xs:string[2]\"",
        " SOAP-ENC:arrayType=\"[\"",
        " xmlns:bus=\"http://elsewhere.example\"",
        " xmlns=\"http://elsewhere.example\"",
        "<item/>",
        "<item>text</item>",
        "<item xsi:type=\"bus:schedule\"/>",
        "<name>text</name>",
        "<value>-1</value>",
        "<detail/>",
        "<detail><item><severity>error</severity></item></detail>",
        "99999999999999999999",
        "not a number",
        "&amp;&lt;&#x1F600;",
        "&#13;",
        "&entity;",
        "<![CDATA[<]]>",
        "<!--",
        "-->",
        "<?xml version=\"1.0\"?>",
        "</",
        ">",
        "\"",
        std::string(1, '\0'),
        "\xC3",
        "\xED\xA0\x80",
    };
    return pieces;
}

class Damage {
public:
    explicit Damage(std::uint32_t seed) : m_random(seed) {}

    /// The text with a few things done to it.
    std::string operator()(std::string text) {
        for (std::size_t count = 1 + below(3); count != 0; --count)
            once(text);
        return text;
    }

private:
    std::size_t below(std::size_t limit) {
        return limit == 0 ? 0 : std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random);
    }

    /// Where the next tag begins behind a place at random, or the end.
    std::size_t tag(const std::string& text) {
        return std::min(text.find('<', below(text.size())), text.size());
    }

    /// Where the name of a tag at random ends: what stands there is its attributes.
    std::size_t attributes(const std::string& text) {
        return std::min(text.find_first_of(" >/", tag(text) + 1), text.size());
    }

    void once(std::string& text) {
        const std::string& piece = pieces()[below(pieces().size())];
        switch (below(8)) {
            case 0: text[below(text.size())] = static_cast<char>(below(256)); break;
            case 1: text.erase(below(text.size()), 1 + below(40)); break;
            case 2: text.insert(piece[0] == ' ' ? attributes(text) : tag(text), piece); break;
            case 3: text.insert(attributes(text), piece); break;
            case 4: text.insert(below(text.size()), piece); break;
            case 5: {  // an element, more or less, stands twice
                const std::size_t from = tag(text);
                text.insert(tag(text), text.substr(from, tag(text) - std::min(from, tag(text))));
                break;
            }
            case 6: {  // a name takes the place of another
                const std::size_t from = tag(text);
                const std::string name = text.substr(from, attributes(text) - from);
                const std::size_t to = tag(text);
                if (name.size() < 60)
                    text.replace(to, std::min(text.find_first_of(" >/", to + 1), text.size()) - to,
                                 name);
                break;
            }
            default: {  // a value of an attribute takes the place of another
                const std::size_t from = text.find("=\"", below(text.size()));
                const std::size_t to = text.find("=\"", below(text.size()));
                if (from == std::string::npos || to == std::string::npos) break;
                const std::string value =
                    text.substr(from + 2, text.find('"', from + 2) - from - 2);
                text.replace(to + 2, text.find('"', to + 2) - to - 2, value);
            }
        }
    }

    std::mt19937 m_random;
};

std::string written(KORVAPortTypeBinding& call, KORVAMessageI& message) {
    BRIMMemoryOutputStream out;
    KORVASOAPMessageISerializer().serialize(call, message, out);
    return {out.str(), out.pcount()};
}

/// How many of the damaged forms of `envelope` `read` took. It may refuse the others by a numbered
/// exception, by a fault, and by what the stream of base64 throws.
std::size_t readDamaged(const std::string& envelope,
                        const std::function<void(const std::string&)>& read) {
    std::size_t taken = 0;
    for (std::uint32_t seed = 0; seed != seeds; ++seed) {
        const std::string damaged = Damage(seed)(envelope);
        SCOPED_TRACE(testing::Message() << "seed " << seed << ":\n" << damaged);
        try {
            read(damaged);
            ++taken;
        } catch (const KORVAException& refusal) {
            EXPECT_FALSE(refusal.getMessages().empty());
        } catch (const KORVASOAPFaultException&) {
        } catch (const BRIMStreamError&) {
        } catch (const ZELThrowable& failure) {
            ADD_FAILURE() << failure.toString();
        }
    }
    return taken;
}

class DamagedEnvelope : public testing::Test {
protected:
    KORVA_AttachmentHandler m_attachments;
    KORVASOAPMessageIDeserializer m_deserializer;
};

TEST_F(DamagedEnvelope, ARequestIsReadOrRefused) {
    m_deserializer.setAttachmentHandler(&m_attachments);
    for (const char* const name : {"request-with-header", "request-with-null-elements"}) {
        SCOPED_TRACE(name);
        std::size_t taken = readDamaged(goldenEnvelope(name), [&](const std::string& text) {
            const Binding call = korva::test::readRequest(m_deserializer, text);
            // What was read can be written, and reads as the same again.
            const std::string first = written(*call, call->getInputMessage());
            const Binding again = korva::test::readRequest(m_deserializer, first);
            EXPECT_EQ(written(*again, again->getInputMessage()), first);
        });
        EXPECT_GT(taken, 0U);
        EXPECT_LT(taken, seeds);
    }
}

TEST_F(DamagedEnvelope, AReplyIsReadOrRefused) {
    m_deserializer.setAttachmentHandler(&m_attachments);
    for (const char* const name : {"reply-with-details", "reply-with-attachment"}) {
        SCOPED_TRACE(name);
        std::size_t taken = readDamaged(goldenEnvelope(name), [&](const std::string& text) {
            const auto call = makeRunCall();
            korva::test::readReply(m_deserializer, *call, text);
            const std::string first = written(*call, call->getOutputMessage());
            const auto again = makeRunCall();
            korva::test::readReply(m_deserializer, *again, first);
            EXPECT_EQ(written(*again, again->getOutputMessage()), first);
        });
        EXPECT_GT(taken, 0U);
        EXPECT_LT(taken, seeds);
    }
}

TEST_F(DamagedEnvelope, AFaultIsRaisedOrRefused) {
    m_deserializer.setAttachmentHandler(&m_attachments);
    for (const char* const name :
         {"fault-both-shapes-formatted", "fault-documented", "fault-undocumented"}) {
        SCOPED_TRACE(name);
        std::size_t raised = 0;
        readDamaged(goldenEnvelope(name), [&](const std::string& text) {
            const auto call = makeRunCall();
            try {
                korva::test::readReply(m_deserializer, *call, text);
            } catch (const KORVASOAPFaultException& fault) {
                ++raised;
                std::string messages;
                fault.getSOAPFaultMessages(messages);
                throw;
            }
        });
        EXPECT_GT(raised, 0U);
        EXPECT_LT(raised, seeds);
    }
}

}  // namespace
