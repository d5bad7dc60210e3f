#include "tests/halyard/Messages.h"

#include <halyard/HALYARDTKMultipartWriter.h>
#include <zel/ZELAssertError.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using korva::test::gzipped;
using korva::test::lines;
using korva::test::PiecewiseInput;
using korva::test::ReadMessage;
using korva::test::readMessage;
using korva::test::RecordingOutput;
using korva::test::streamErrorOf;

void write(BRIMOutputStream& stream, const std::string& text) {
    stream.write(text.data(), text.size());
}

std::string text(const BRIMMemoryOutputStream& stream) {
    return {stream.str(), stream.pcount()};
}

std::string boundaryOf(const HALYARDTKMultipartWriter& writer) {
    const std::string type = writer.getContentType();
    const std::size_t begin = type.find("boundary=\"") + 10;
    return type.substr(begin, type.find('"', begin) - begin);
}

TEST(MultipartWriter, WritesEnvelopeAndParts) {
    BRIMMemoryOutputStream out;
    HALYARDTKMultipartWriter writer(out);
    EXPECT_EQ(out.pcount(), 0u);
    write(writer.beginRoot(), "<e/>");
    write(writer.beginPart("one", "text/plain"), "1");
    write(writer.beginPart("<two>", "application/octet-stream"), std::string("\0\r\n", 3));
    writer.beginPart(nullptr, "text/plain; charset=UTF-8");
    writer.close();
    const std::string boundary = boundaryOf(writer);
    EXPECT_EQ(text(out),
              lines("--" + boundary +
                    "|Content-Type: text/xml; charset=UTF-8|"
                    "Content-Transfer-Encoding: binary|Content-ID: <root@" +
                    boundary + ">||<e/>|--" + boundary +
                    "|Content-Type: text/plain|Content-Transfer-Encoding: binary|"
                    "Content-ID: <one>||1|--" +
                    boundary +
                    "|Content-Type: application/octet-stream|Content-Transfer-Encoding: binary|"
                    "Content-ID: <two>||") +
                  std::string("\0\r\n", 3) +
                  lines("|--" + boundary +
                        "|Content-Type: text/plain; charset=UTF-8|"
                        "Content-Transfer-Encoding: binary|||--" +
                        boundary + "--|"));
    EXPECT_EQ(std::string(writer.getContentType()),
              "multipart/related; type=\"text/xml\"; start=\"<root@" + boundary +
                  ">\"; boundary=\"" + boundary + '"');
}

TEST(MultipartWriter, WhatItWritesReadsBack) {
    BRIMMemoryOutputStream out;
    HALYARDTKMultipartWriter writer(out);
    write(writer.beginRoot(), "<e/>");
    std::string binary;
    for (unsigned i = 0; i < 100000; ++i)
        binary += static_cast<char>(i * i >> 3U);
    PiecewiseInput content(binary, 777);
    writer.writePart("one", "application/octet-stream", content);
    PiecewiseInput again(binary, 777);
    writer.writePart("two", "application/octet-stream", again, HALYARDTKMultipartWriter::eGzip);
    write(writer.beginPart("three", "text/plain", HALYARDTKMultipartWriter::eGzip), "3");
    writer.close();
    EXPECT_EQ(readMessage(text(out), writer.getContentType()),
              (ReadMessage{"<e/>",
                           {{"<one>", binary, false},
                            {"<two>", gzipped(binary), true},
                            {"<three>", gzipped("3"), true}}}));
}

TEST(MultipartWriter, EachMessageHasABoundaryOfItsOwn) {
    std::set<std::string> boundaries;
    for (int i = 0; i < 100; ++i) {
        RecordingOutput out;
        const HALYARDTKMultipartWriter writer(out);
        const std::string boundary = boundaryOf(writer);
        EXPECT_EQ(boundary.size(), 48u);
        boundaries.insert(boundary);
    }
    EXPECT_EQ(boundaries.size(), 100u);
}

TEST(MultipartWriter, HoldsNothingBackAndLeavesTheStreamOpen) {
    RecordingOutput out;
    HALYARDTKMultipartWriter writer(out);
    BRIMOutputStream& root = writer.beginRoot();
    const std::size_t head = out.all().size();
    EXPECT_GT(head, 100u);
    write(root, "<e/>");
    EXPECT_EQ(out.all().size(), head + 4);
    root.flush();
    EXPECT_EQ(out.flushes(), 1);
    root.close();
    writer.close();
    const std::string all = out.all();
    writer.close();
    EXPECT_EQ(out.all(), all);
    EXPECT_EQ(out.closes(), 0);
}

TEST(MultipartWriter, AMessageThatWasNotClosedIsNotComplete) {
    BRIMMemoryOutputStream out;
    std::string type;
    {
        HALYARDTKMultipartWriter writer(out);
        type = writer.getContentType();
        write(writer.beginRoot(), "<e/>");
        write(writer.beginPart("one", "text/plain"), "1");
    }
    EXPECT_EQ(streamErrorOf([&] { readMessage(text(out), type); }),
              "multipart: the message is cut short");
}

TEST(MultipartWriter, TheOrderIsHeld) {
    const auto assertionOf = [](auto action) {
        try {
            action();
        } catch (const ZELAssertError& error) {
            return std::string(error.getText());
        }
        return std::string("no assertion");
    };
    RecordingOutput out;
    HALYARDTKMultipartWriter writer(out);
    const std::string outOfOrder = "ZEL_ASSERT(m_message->hasRoot && !m_message->isClosed);";
    EXPECT_EQ(assertionOf([&] { writer.beginPart("a", "text/plain"); }), outOfOrder);
    EXPECT_EQ(assertionOf([&] { writer.close(); }), "ZEL_ASSERT(m_message->hasRoot);");
    EXPECT_EQ(out.all(), "");
    writer.beginRoot();
    EXPECT_EQ(assertionOf([&] { writer.beginRoot(); }), "ZEL_ASSERT(!m_message->hasRoot);");
    EXPECT_EQ(assertionOf([&] { writer.beginPart("a", nullptr); }), "ZEL_ASSERT(contentType);");
    writer.close();
    EXPECT_EQ(assertionOf([&] { writer.beginPart("a", "text/plain"); }), outOfOrder);
}

TEST(MultipartWriter, NoHeaderCanBeSmuggledIn) {
    RecordingOutput out;
    HALYARDTKMultipartWriter writer(out);
    writer.beginRoot();
    const std::string before = out.all();
    for (const char* const bad : {"a\r\nX: y", "a\nb", "a\tb", "\x7F"}) {
        const std::string refused = "multipart: a header would have a control character";
        EXPECT_EQ(streamErrorOf([&] { writer.beginPart(bad, "text/plain"); }), refused);
        EXPECT_EQ(streamErrorOf([&] { writer.beginPart("a", bad); }), refused);
    }
    EXPECT_EQ(out.all(), before);
}

TEST(MultipartWriter, AFailureOfTheStreamPassesThrough) {
    RecordingOutput out(1);
    HALYARDTKMultipartWriter writer(out);
    BRIMOutputStream& root = writer.beginRoot();
    EXPECT_EQ(streamErrorOf([&] { write(root, "<e/>"); }), "the stream is full");
    EXPECT_EQ(streamErrorOf([&] { writer.close(); }), "the stream is full");
}

}  // namespace
