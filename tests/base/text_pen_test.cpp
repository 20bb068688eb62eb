#include "base/text_pen.h"

#include <gtest/gtest.h>

#include <string>

namespace vrel {
namespace {

/// What a stream got after some writing with a pen.
template <typename Writing>
std::string written(Writing writing) {
  std::string text;
  {
    TextOutput output = TextOutput::toMemory(text);
    {
      TextPen pen(output);
      writing(pen);
    }
    output.write("|");
  }
  return text;
}

TEST(TextPen, HandsOverAllPiecesInTheirOrder) {
  EXPECT_EQ(written([](TextPen& pen) {
              pen.put('a');
              pen.write("bcd");
              char* to = pen.room(10);
              *to = 'e';
              pen.advance(to + 1);
              pen.fill('x', 3);
              pen.write("");
              pen.fill('y', 0);
            }),
            "abcdexxx|");
}

TEST(TextPen, PiecesOfAnySizeCrossItsBordersWhole) {
  for (const std::size_t size :
       {std::size_t{1}, std::size_t{1000}, TextOutput::kMaxReserve - 1, TextOutput::kMaxReserve,
        TextOutput::kMaxReserve + 1, std::size_t{1000000}}) {
    const std::string piece(size, 'p');
    std::string expected;
    for (int i = 0; i < 20; ++i) {
      expected += "<" + piece + ">" + std::string(size, '\t');
    }
    EXPECT_EQ(written([&](TextPen& pen) {
                for (int i = 0; i < 20; ++i) {
                  pen.put('<');
                  pen.write(piece);
                  pen.put('>');
                  pen.fill('\t', size);
                }
              }),
              expected + "|")
        << size;
  }
}

}  // namespace
}  // namespace vrel
