#include "tests/halyard/Messages.h"

#include <zel/ZELAssertError.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::gzipped;
using korva::test::lines;
using korva::test::PiecewiseInput;
using korva::test::readAll;
using korva::test::ReadMessage;
using korva::test::readMessage;
using korva::test::ReadPart;
using korva::test::readParts;
using korva::test::streamErrorOf;
using korva::test::typeOfB;

std::string assertionOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const ZELAssertError& error) {
        return error.getText();
    }
    return "no assertion";
}

const ReadMessage expected = {"<e/>", {{"<1>", "one", false}, {"none", "", false}}};

TEST(MultipartReader, GivesTheRootThenTheParts) {
    const std::string text = lines(
        "--b|Content-Type: text/xml||<e/>|--b|Content-ID: <1>||one|--b||"
        "|--b--|");
    for (const std::size_t piece : {1ul, 2ul, 3ul, 7ul, 1000000ul})
        for (const std::size_t size : {1ul, 2ul, 1000ul})
            EXPECT_EQ(readMessage(text, typeOfB, piece, size), expected) << piece << " " << size;
}

TEST(MultipartReader, LinesMayEndWithLineFeeds) {
    EXPECT_EQ(readMessage(lines("--b||<e/>|--b|Content-ID: <1>||one|--b|||--b--|", "\n")),
              expected);
    // Then CR is content.
    EXPECT_EQ(readMessage("--b\n\nx\r\n--b--\n").root, "x\r");
}

TEST(MultipartReader, BareLineFeedsEndNothingInAMessageWithCrLf) {
    const std::string content = "x\n--b\n--b--\n\r\n--b\n\r--b\r\n";
    EXPECT_EQ(readMessage("--b\r\n\r\n" + content + "\r\n--b--").root, content);
}

TEST(MultipartReader, WhatStandsBeforeAndBehindIsSkipped) {
    EXPECT_EQ(
        readMessage(lines("This is|--bb| --b|a message.|--b||<e/>|--b|Content-ID: <1>||one|--b"
                          "|||--b--|--b||three|--b--|")),
        expected);
}

TEST(MultipartReader, ThePlaceOfAPreambleInTheStreamPlaysNoPart) {
    for (std::size_t length = 32600; length < 32800; ++length) {
        const std::string text = std::string(length, 'p') + lines("|--b||<e/>|--b--|");
        ASSERT_EQ(readMessage(text).root, "<e/>") << length;
    }
}

TEST(MultipartReader, TheLastBoundaryMayBeTheEnd) {
    EXPECT_EQ(readMessage(lines("--b||<e/>|--b--")).root, "<e/>");
    EXPECT_EQ(readMessage(lines("--b||<e/>|--b--  ")).root, "<e/>");
    EXPECT_EQ(readMessage(lines("--b||<e/>|--b--|")).root, "<e/>");
}

TEST(MultipartReader, BlanksMayFollowABoundary) {
    EXPECT_EQ(readMessage(lines("--b \t|") + lines("|<e/>|--b  |Content-ID: <1>||one|--b\t|||--b-- "
                                                   "|")),
              expected);
}

TEST(MultipartReader, ABoundaryWithMoreBehindItIsContent) {
    const std::string content = lines("x|--bb|--b b|--|--|--b-|--b---|--b--x|--b\r|-b|--b") +
                                std::string(300, ' ') + "\r\n";
    for (const std::size_t piece : {1ul, 5ul, 1000000ul}) {
        const ReadMessage message =
            readMessage("--b\r\n\r\n" + content + "\r\n--b\r\n\r\n" + content + "\r\n--b--\r\n",
                        typeOfB, piece);
        EXPECT_EQ(message.root, content);
        ASSERT_EQ(message.parts.size(), 1u);
        EXPECT_EQ(message.parts[0].content, content);
    }
}

TEST(MultipartReader, BinaryContentOfEverySizePasses) {
    for (std::size_t size = 32650; size < 32850; size += 7) {
        std::string content;
        for (std::size_t i = 0; i < size; ++i)
            content += "\r\n--\0b"[i * 7 % 11 % 6];
        const ReadMessage message =
            readMessage("--b\r\n\r\n\r\n--b\r\n\r\n" + content + "\r\n--b--\r\n", typeOfB, 1000);
        ASSERT_EQ(message.parts.size(), 1u) << size;
        ASSERT_EQ(message.parts[0].content, content) << size;
    }
}

TEST(MultipartReader, AnEmptyPartNeedsNoLineBreakOfItsOwn) {
    EXPECT_EQ(readMessage(lines("--b||<e/>|--b|Content-ID: <1>||--b--|")),
              (ReadMessage{"<e/>", {{"<1>", "", false}}}));
    EXPECT_EQ(readMessage(lines("--b||--b--|")).root, "");
}

TEST(MultipartReader, HeadersAreFoldedAndCompareWithoutCase) {
    const std::string text = lines(
        "--b|content-TYPE:text/xml;|\tcharset=UTF-8  |X:|X: 2||<e/>|--b|"
        "CONTENT-ID  :  <1>  |Y: z||one|--b--|");
    PiecewiseInput in(text, 3);
    HALYARDTKMultipartReader reader(in, typeOfB.c_str());
    EXPECT_EQ(reader.getHeader("Content-Type"), nullptr);
    reader.getRoot();
    EXPECT_STREQ(reader.getHeader("Content-Type"), "text/xml; charset=UTF-8");
    EXPECT_STREQ(reader.getHeader("x"), "");
    EXPECT_EQ(reader.getHeader("Y"), nullptr);
    ASSERT_TRUE(reader.hasNextPart());
    EXPECT_STREQ(reader.getNextPart()->getContentId(), "<1>");
    EXPECT_STREQ(reader.getHeader("y"), "z");
    EXPECT_EQ(reader.getHeader("Content-Type"), nullptr);
    EXPECT_EQ(assertionOf([&] { reader.getHeader(nullptr); }), "ZEL_ASSERT(name);");
}

TEST(MultipartReader, AHeaderMayBeFoldedBehindItsColon) {
    const std::string text = lines(
        "--b|Content-Type:| text/xml|X:|\t |Y: a| | ||<e/>|--b|Content-ID:| <a@b>||one|--b|"
        "Content-ID:|\t|\t<c@d>| ||two|--b--|");
    PiecewiseInput in(text, 3);
    HALYARDTKMultipartReader reader(in, typeOfB.c_str());
    reader.getRoot();
    EXPECT_STREQ(reader.getHeader("Content-Type"), "text/xml");
    EXPECT_STREQ(reader.getHeader("X"), "");
    EXPECT_STREQ(reader.getHeader("Y"), "a");
    for (const char* const id : {"<a@b>", "<c@d>"}) {
        ASSERT_TRUE(reader.hasNextPart());
        HALYARDTKMessagePart* const part = reader.getNextPart();
        EXPECT_STREQ(part->getContentId(), id);
        reader.releasePart(part);
    }
}

TEST(MultipartReader, TheMessagesTypeMayBeFolded) {
    const std::string text = lines("--b||<e/>|--b--|");
    for (const char* const type :
         {"multipart/related;\r\n boundary=b", "multipart/related;\r\n\tboundary=b;\n type=\"x\"",
          "multipart/related; boundary=b\r\n", "multipart/related;\nboundary=b\n;type=x",
          "multipart/related;\n\n  boundary\r\n =\r\n b",
          " \r\n multipart/related; boundary=\"b\""})
        EXPECT_EQ(readMessage(text, type).root, "<e/>") << type;
    EXPECT_EQ(
        readMessage(lines("--a b||<e/>|--a b--|"), "multipart/related; boundary=\"a\r\n\tb\"").root,
        "<e/>");
}

TEST(MultipartReader, TheLastBoundaryMayEndWithHalfALineBreak) {
    for (const std::size_t piece : {1ul, 1000000ul}) {
        EXPECT_EQ(readMessage("--b\r\n\r\n<e/>\r\n--b--\r", typeOfB, piece).root, "<e/>");
        EXPECT_EQ(readMessage("--b\r\n\r\n<e/>\r\n--b-- \t\r", typeOfB, piece).root, "<e/>");
    }
}

TEST(MultipartReader, AnEmptyIdIsNone) {
    EXPECT_EQ(readMessage(lines("--b||<e/>|--b|Content-ID: ||one|--b--|")).parts[0].id, "none");
}

TEST(MultipartReader, BoundariesAreQuotedOrNot) {
    const std::string text = lines("--a b\"c||<e/>|--a b\"c--|");
    EXPECT_EQ(
        readMessage(text, "Multipart/Related ; type = \"text/xml\";BOUNDARY= \"a b\\\"c\" ;").root,
        "<e/>");
    const std::string longest(70, 'x');
    EXPECT_EQ(readMessage(lines("--" + longest + "||<e/>|--" + longest + "--|"),
                          "multipart/related;boundary=" + longest)
                  .root,
              "<e/>");
}

TEST(MultipartReader, TypesThatTellNoBoundaryAreRefused) {
    const auto errorOf = [](const char* type) {
        return streamErrorOf([&] { readMessage("", type); });
    };
    const std::string none = "multipart: the message's type tells no boundary";
    EXPECT_EQ(errorOf("multipart/related"), none);
    EXPECT_EQ(errorOf("multipart/related; boundary="), none);
    EXPECT_EQ(errorOf("multipart/related; boundary=\"\""), none);
    EXPECT_EQ(errorOf("multipart/related; xboundary=b"), none);
    const std::string malformed = "multipart: the parameters of a Content-Type are malformed";
    EXPECT_EQ(errorOf("multipart/related; boundary"), malformed);
    EXPECT_EQ(errorOf("multipart/related; boundary=\"b"), malformed);
    EXPECT_EQ(errorOf("multipart/related; type=a b; boundary=b"), malformed);
    const std::string bad = "multipart: the message's boundary is none";
    EXPECT_EQ(errorOf(("multipart/related; boundary=" + std::string(71, 'x')).c_str()), bad);
    EXPECT_EQ(errorOf("multipart/related; boundary=\"a\nb\""), bad);
    EXPECT_EQ(errorOf("Multipart/mixed; boundary=b"),
              "multipart: the message's type \"Multipart/mixed\" isn't supported");
}

TEST(MultipartReader, WhatIsNotMultipartIsARootAlone) {
    const std::string text = lines("--b||<e/>|--b--|");
    for (const char* const type : {"text/xml; boundary=b", "", "multipart", "TEXT/XML"}) {
        PiecewiseInput in(text, 1000);
        HALYARDTKMultipartReader reader(in, type);
        EXPECT_EQ(readAll(reader.getRoot()), text) << type;
        EXPECT_FALSE(reader.hasAttachments());
        EXPECT_FALSE(reader.hasNextPart());
        EXPECT_EQ(assertionOf([&] { reader.getNextPart(); }), "ZEL_ASSERT(hasNextPart());");
    }
    PiecewiseInput in(text, 1000);
    HALYARDTKMultipartReader reader(in, nullptr);
    EXPECT_FALSE(reader.hasAttachments());
    EXPECT_EQ(readAll(reader.getRoot()), text);
}

TEST(MultipartReader, TheRootMustBeTheFirstPart) {
    const std::string text = lines("--b|Content-ID: <r>||<e/>|--b|Content-ID: s||one|--b--|");
    for (const char* const start : {"r", "\"<r>\"", "\"\""})
        EXPECT_EQ(readMessage(text, typeOfB + "; start=" + start).root, "<e/>") << start;
    PiecewiseInput in(text, 1000);
    HALYARDTKMultipartReader reader(in, (typeOfB + ";start=s").c_str());
    EXPECT_EQ(streamErrorOf([&] { reader.getRoot(); }),
              "multipart: the root part isn't the first part");
    EXPECT_EQ(streamErrorOf([&] { reader.getRoot(); }), "multipart: the root part can't be read");
    EXPECT_EQ(streamErrorOf([&] { reader.hasNextPart(); }),
              "multipart: the root part can't be read");
    EXPECT_EQ(streamErrorOf([&] { readMessage(lines("--b||<e/>|--b--|"), typeOfB + "; start=r"); }),
              "multipart: the root part isn't the first part");
}

TEST(MultipartReader, HasAttachmentsStaysTrueBehindTheLast) {
    PiecewiseInput in(lines("--b||<e/>|--b||one|--b||two|--b--|"), 1);
    HALYARDTKMultipartReader reader(in, typeOfB.c_str());
    EXPECT_TRUE(reader.hasAttachments());
    EXPECT_TRUE(reader.hasAttachments());
    EXPECT_EQ(readParts(reader).size(), 2u);
    EXPECT_FALSE(reader.hasNextPart());
    EXPECT_TRUE(reader.hasAttachments());
    EXPECT_EQ(assertionOf([&] { reader.getNextPart(); }), "ZEL_ASSERT(hasNextPart());");
}

TEST(MultipartReader, WhatIsLeftOfARootOrAPartIsSkipped) {
    const std::string rest(100000, 'r');
    PiecewiseInput in(lines("--b||<e/>" + rest + "|--b||one" + rest + "|--b||two|--b--|"), 1000);
    HALYARDTKMultipartReader reader(in, typeOfB.c_str());
    BRIMInputStream& root = reader.getRoot();
    char bytes[3];
    EXPECT_EQ(root.read(bytes, 3), 3);
    ASSERT_TRUE(reader.hasNextPart());
    EXPECT_EQ(root.read(bytes, 3), 0) << "the root's stream gives what isn't its own";
    HALYARDTKMessagePart* part = reader.getNextPart();
    EXPECT_EQ(part->getStream().read(bytes, 3), 3);
    EXPECT_EQ(std::string(bytes, 3), "one");
    reader.releasePart(part);
    EXPECT_EQ(part->getStream().read(bytes, 3), 0);
    EXPECT_EQ(readParts(reader), (std::vector<ReadPart>{{"none", "two", false}}));
}

TEST(MultipartReader, OnePartIsOutAtATime) {
    PiecewiseInput in(lines("--b||<e/>|--b||one|--b||two|--b--|"), 1000);
    HALYARDTKMultipartReader reader(in, typeOfB.c_str());
    ASSERT_TRUE(reader.hasNextPart());
    HALYARDTKMessagePart* const part = reader.getNextPart();
    const std::string out = "ZEL_ASSERT(!m_message->partIsOut);";
    EXPECT_EQ(assertionOf([&] { reader.hasNextPart(); }), out);
    EXPECT_EQ(assertionOf([&] { reader.getNextPart(); }), out);
    EXPECT_TRUE(reader.hasAttachments());
    const std::string notOut = "ZEL_ASSERT(m_message->partIsOut && part == &*m_message->part);";
    EXPECT_EQ(assertionOf([&] { reader.releasePart(nullptr); }), notOut);
    EXPECT_EQ(readAll(part->getStream()), "one");
    reader.releasePart(part);
    EXPECT_EQ(assertionOf([&] { reader.releasePart(part); }), notOut);
    EXPECT_TRUE(reader.hasNextPart());
}

TEST(MultipartReader, TransferEncodingsAreUndone) {
    const std::string text = lines(
        "--b|Content-Transfer-Encoding: BASE64||PGUv|Pg==|--b|"
        "Content-Transfer-Encoding: base64||AAEC|--b|Content-Transfer-Encoding: Binary||"
        "AAEC|--b|Content-Transfer-Encoding: 8bit||x|--b|Content-Transfer-Encoding: 7BIT||y"
        "|--b--|");
    const ReadMessage message = readMessage(text);
    EXPECT_EQ(message.root, "<e/>");
    ASSERT_EQ(message.parts.size(), 4u);
    EXPECT_EQ(message.parts[0].content, std::string("\0\1\2", 3));
    EXPECT_EQ(message.parts[1].content, "AAEC");
    EXPECT_EQ(message.parts[2].content, "x");
    EXPECT_EQ(message.parts[3].content, "y");
}

TEST(MultipartReader, OtherEncodingsAreRefused) {
    const auto errorOf = [](const char* header) {
        return streamErrorOf(
            [&] { readMessage(lines(std::string("--b|") + header + "||x|--b--")); });
    };
    EXPECT_EQ(errorOf("Content-Transfer-Encoding: quoted-printable"),
              "multipart: the transfer encoding \"quoted-printable\" isn't supported");
    EXPECT_EQ(errorOf("Content-Encoding: br"),
              "multipart: the content encoding \"br\" isn't supported");
    EXPECT_EQ(errorOf("Content-Encoding: gzip|content-encoding: identity"),
              "multipart: a part has the header Content-Encoding twice");
    EXPECT_EQ(errorOf("Content-ID: <1>|Content-ID: <2>"),
              "multipart: a part has the header Content-ID twice");
    EXPECT_EQ(errorOf("X: 1|X: 2"), "no error");
}

TEST(MultipartReader, APartThatIsRefusedCanBePassed) {
    PiecewiseInput in(lines("--b||<e/>|--b|Content-Encoding: br||one|--b||two|--b--|"), 1000);
    HALYARDTKMultipartReader reader(in, typeOfB.c_str());
    EXPECT_TRUE(reader.hasNextPart());
    EXPECT_NE(streamErrorOf([&] { reader.getNextPart(); }), "no error");
    EXPECT_EQ(readParts(reader), (std::vector<ReadPart>{{"none", "two", false}}));
}

TEST(MultipartReader, CompressedPartsAreHandedOutAsTheyAre) {
    const std::string data = gzipped("some text");
    const std::string text = lines("--b||<e/>|--b|Content-Encoding: gzip||") + data +
                             lines("|--b|Content-Encoding: X-GZIP||") + data +
                             lines("|--b|Content-Encoding: identity||plain|--b--|");
    EXPECT_EQ(readMessage(text).parts,
              (std::vector<ReadPart>{
                  {"none", data, true}, {"none", data, true}, {"none", "plain", false}}));
}

TEST(MultipartReader, ACompressedRootIsExpanded) {
    const std::string text =
        lines("--b|Content-Encoding: gzip||") + gzipped("<e/>") + lines("|--b||one|--b--|");
    for (const std::size_t piece : {1ul, 1000ul}) {
        const ReadMessage message = readMessage(text, typeOfB, piece);
        EXPECT_EQ(message.root, "<e/>");
        ASSERT_EQ(message.parts.size(), 1u);
        EXPECT_EQ(message.parts[0].content, "one");
    }
}

TEST(MultipartReader, AFailureOfTheStreamPassesThrough) {
    PiecewiseInput in(lines("--b||<e/>|--b||one"), 1000);
    in.failAtEnd([] { throw 7; });
    HALYARDTKMultipartReader reader(in, typeOfB.c_str());
    EXPECT_EQ(readAll(reader.getRoot()), "<e/>");
    EXPECT_TRUE(reader.hasNextPart());
    HALYARDTKMessagePart* const part = reader.getNextPart();
    EXPECT_THROW(readAll(part->getStream()), int);
    reader.releasePart(part);
    EXPECT_THROW(reader.hasNextPart(), int);
}

TEST(MultipartReader, WaitsForNoMoreThanItNeeds) {
    // Each read below would wait for ever if it asked for what isn't there yet.
    PiecewiseInput in(lines("--b||<e/>|--b||one"), 1000);
    in.failAtEnd([] { FAIL() << "more was asked for"; });
    HALYARDTKMultipartReader reader(in, typeOfB.c_str());
    EXPECT_EQ(readAll(reader.getRoot()), "<e/>");
    EXPECT_TRUE(reader.hasNextPart());
    char bytes[3];
    HALYARDTKMessagePart* const part = reader.getNextPart();
    EXPECT_EQ(part->getStream().read(bytes, 3), 3);
    reader.releasePart(part);
}

}  // namespace
