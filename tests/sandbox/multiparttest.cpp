#include "sandbox/upload/multipart.h"

#include "sandbox/upload/refusal.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace std::string_literals;

const std::string kHead = "Content-Disposition: form-data; name=\"payload\"; filename=\"payload.zip\"\r\n";

std::string body(const std::string& headers, const std::string& contents) {
    return "--B\r\n" + headers + "\r\n" + contents + "\r\n--B--\r\n";
}

TEST(Multipart, FindsTheContents) {
    const struct {
        std::string body;
        std::string contents;
    } cases[] = {
        {body(kHead, "data"), "data"},
        {body(kHead, ""), ""},
        {body(kHead, "\r\n--\r\n--C--\r\n-B"), "\r\n--\r\n--C--\r\n-B"},
        {body(kHead, "\0\xff\r\r\n"s), "\0\xff\r\r\n"s},
        {body(kHead + "Content-Transfer-Encoding: binary\r\nContent-Type: application/octet-stream\r\n", "x"),
         "x"},
        {"--B\r\n" + kHead + "\r\n\r\n--B--", ""},
    };
    for (const auto& c : cases) {
        const auto part = sandbox::parseSinglePart("B", c.body);
        EXPECT_EQ(part.name, "payload");
        EXPECT_EQ(part.filename, "payload.zip");
        EXPECT_EQ(c.body.substr(part.offset, part.length), c.contents);
    }
}

TEST(Multipart, RefusesMalformedBodies) {
    const auto good = body(kHead, "data");
    const std::string cases[] = {
        "",
        "\r\n" + good,                                    // something before the delimiter
        good + "x",                                       // something after the end
        good.substr(0, good.size() - 4),                  // no closing "--"
        "--B\n" + good.substr(5),                         // bare line feed
        "--B\r\n" + kHead + "data\r\n--B--\r\n",          // no empty line
        body("", "data"),                                 // no Content-Disposition
        body(kHead + kHead, "data"),                      // header twice
        body("Content-Disposition: attachment\r\n", "x"), // not form-data
        body("Content-Disposition: form-data; name=payload; name=b\r\n", "x"),
        body("Content-Disposition: form-data; name=\"payload\r\n", "x"),
        body("Content-Disposition form-data\r\n", "x"), // no colon
        body(kHead + " folded: x\r\n", "x"),            // blank in a name
        body(kHead + "Content-Transfer-Encoding: base64\r\n", "x"),
        body(kHead, "data\r\n--B\r\n" + kHead + "\r\nmore"), // two parts
        body(kHead, "data\r\n--Bx"),                         // the boundary goes on
    };
    for (const auto& text : cases) {
        EXPECT_THROW(sandbox::parseSinglePart("B", text), sandbox::Refusal) << text;
    }
}

TEST(Multipart, ReadsTheBoundary) {
    EXPECT_EQ(sandbox::boundaryOf("multipart/form-data; boundary=----XXBOUNDARY0A1F"), "----XXBOUNDARY0A1F");
    EXPECT_EQ(sandbox::boundaryOf("Multipart/Form-Data ;  Boundary=\"a b\""), "a b");
    for (const char* type :
         {"", "application/zip; boundary=B", "multipart/form-data",
          "multipart/form-data; boundary=", "multipart/form-data; boundary=\"\"",
          "multipart/form-data; boundary=\"a\r\n\"", "multipart/form-data; boundary=\"a ",
          "multipart/form-data boundary=B", "multipart/form-data; boundary=B; boundary=C"}) {
        EXPECT_THROW(sandbox::boundaryOf(type), sandbox::Refusal) << type;
    }
    EXPECT_THROW(sandbox::boundaryOf("multipart/form-data; boundary=" + std::string(71, 'x')),
                 sandbox::Refusal);
}

} // namespace
