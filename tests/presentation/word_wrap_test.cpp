#include "presentation/word_wrap.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace vandrel {
namespace {

TEST(WordWrap, BreaksAtTheLastWhiteSpaceWithinReach) {
    const std::tuple<std::string, int, const char*> texts[] = {
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
        {"1234567890123", 5, "12345\n67890\n123"},  // and cut again in every line
    };
    for (const auto& [text, width, wrapped] : texts) {
        EXPECT_EQ(wordWrap(text, width), wrapped) << '"' << text << "\" at " << width;
    }
}

}  // namespace
}  // namespace vandrel
