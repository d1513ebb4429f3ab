#include "presentation/word_wrap.h"

#include <gtest/gtest.h>

#include <string>

namespace vandrel {
namespace {

struct WrapCase {
    const char* text;
    int width;
    const char* wrapped;
};

TEST(WordWrap, BreaksAtTheLastWhiteSpaceWithinReach) {
    const WrapCase cases[] = {
        {"", 5, ""},
        {"short", 10, "short"},
        {"12345", 5, "12345"},                    // exactly the width
        {"123456", 5, "123456"},                  // the last character never goes alone
        {"1234567", 5, "12345\n67"},              // a word that is cut, without a hyphen
        {"12345 789", 5, "12345\n789"},           // white space right behind the line
        {"one two three", 7, "one two\nthree"},   // and at the edge
        {"one two three", 6, "one\ntwo\nthree"},  // looks back
        {"a\tbcdefgh", 4, "a\nbcde\nfgh"},        // any white space
        {" abcdefgh", 4, " abc\ndefgh"},          // what begins a line is no place to break it
        {"ab\ncd ef gh", 5, "ab\ncd\nef gh"},     // breaks in the text are counted on through
        {"Current mode: Capture the Flag and more", 30, "Current mode: Capture the Flag\nand more"},
    };
    for (const WrapCase& each : cases) {
        EXPECT_EQ(wordWrap(each.text, each.width), each.wrapped) << '"' << each.text << "\" at " << each.width;
    }
}

TEST(WordWrap, CutsALongWordInEveryLine) {
    EXPECT_EQ(wordWrap(std::string(70, 'x'), 30),
              std::string(30, 'x') + "\n" + std::string(30, 'x') + "\n" + std::string(10, 'x'));
}

}  // namespace
}  // namespace vandrel
