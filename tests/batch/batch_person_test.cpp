#include "batch/batch_person.h"

#include <sstream>

#include <gtest/gtest.h>

namespace veldrana {
namespace {

const MessageBox question{.title = "title",
                          .text = "try again?",
                          .icon = Icon::critical,
                          .buttons = Buttons::retry_cancel};

TEST(BatchPerson, WritesABoxTitleFirst) {
    std::ostringstream messages;
    BatchPerson person(messages, Answer::cancel);
    EXPECT_EQ(person.show({.title = "title", .text = "one\n\ntwo"}), Answer::ok);
    EXPECT_EQ(messages.str(), "title\none\n\ntwo\n");
}

TEST(BatchPerson, AnswersAQuestionByItsRule) {
    std::ostringstream messages;
    EXPECT_EQ(BatchPerson(messages, Answer::cancel).show(question), Answer::cancel);
    EXPECT_EQ(BatchPerson(messages, Answer::retry).show(question), Answer::retry);
    // A box without that button is left.
    EXPECT_EQ(BatchPerson(messages, Answer::ok).show(question), Answer::cancel);
}

TEST(BatchPerson, DoesNotRetryForEver) {
    std::ostringstream messages;
    BatchPerson person(messages, Answer::retry);
    for (int i = 0; i < BatchPerson::retry_limit; ++i) {
        EXPECT_EQ(person.show(question), Answer::retry);
    }
    EXPECT_EQ(person.show(question), Answer::cancel);
    MessageBox other = question;
    other.text = "another question";
    EXPECT_EQ(person.show(other), Answer::retry);
}

TEST(BatchPerson, ChoosesTheFileItWasGiven) {
    std::ostringstream messages;
    BatchPerson person(messages, Answer::cancel);
    EXPECT_EQ(person.choose_file({}), "");
    person.choose("C:\\log\\x.all");
    EXPECT_EQ(person.choose_file({}), "C:\\log\\x.all");
}

TEST(BatchPerson, ChoosesNoFolder) {
    std::ostringstream messages;
    BatchPerson person(messages, Answer::cancel);
    person.choose("C:\\log\\x.all");
    EXPECT_EQ(person.choose_folder("title", "C:\\"), "");
}

}  // namespace
}  // namespace veldrana
