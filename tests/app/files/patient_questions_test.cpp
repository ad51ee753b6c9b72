#include "app/files/patient_questions.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "app/files/fake_questions.h"

namespace vantor::patient_questions_test {
namespace {

class PatientQuestionsTest : public testing::Test {
  protected:
    PatientQuestions::Question ask(int answer) {
        return manual.questions->ask<int>(
            [answer] { return answer; },
            [this](std::optional<int> found) { answers.push_back(found); });
    }

    FakeQuestions manual;
    std::vector<std::optional<int>> answers;
};

TEST_F(PatientQuestionsTest, AnAnswerIsToldOnceOnTheMainThread) {
    const auto question = ask(5);
    EXPECT_TRUE(answers.empty());
    manual.queues->runNext(FakeQuestions::label);
    EXPECT_TRUE(answers.empty()) << "not from the question's thread";
    manual.loop->runPosted();
    EXPECT_EQ(answers, std::vector<std::optional<int>>{5});
    EXPECT_EQ(manual.loop->timerCount(), 0u);
    manual.passPatience();
    EXPECT_EQ(answers.size(), 1u);
}

TEST_F(PatientQuestionsTest, WithoutAnAnswerInTimeThereIsNoneAndALateOneIsDropped) {
    const auto question = ask(5);
    manual.passPatience();
    EXPECT_EQ(answers, std::vector<std::optional<int>>{std::nullopt});
    manual.answerNext();
    EXPECT_EQ(answers.size(), 1u);
}

TEST_F(PatientQuestionsTest, WhoLetsGoHearsNothing) {
    auto question = ask(5);
    question.reset();
    EXPECT_EQ(manual.loop->timerCount(), 0u);
    manual.answerNext();
    manual.passPatience();
    EXPECT_TRUE(answers.empty());
}

TEST_F(PatientQuestionsTest, OneThatHangsHoldsUpNoOther) {
    const auto hanging = ask(1);
    const auto next = ask(2);
    EXPECT_EQ(manual.waiting(), 2u);
    EXPECT_EQ(manual.queues->labels().size(), 2u) << "a thread for each";
}

TEST_F(PatientQuestionsTest, BeyondTheMostThereIsNoAnswerUntilOneOfThemIsOver) {
    std::vector<PatientQuestions::Question> hanging;
    for (int i = 0; i < PatientQuestions::maxOutstanding; ++i)
        hanging.push_back(ask(i));
    const auto refused = ask(100);
    EXPECT_TRUE(answers.empty()) << "not from within the call";
    manual.clock->wind(std::chrono::milliseconds(1));
    manual.loop->runDueTimer();
    EXPECT_EQ(answers, std::vector<std::optional<int>>{std::nullopt});
    EXPECT_EQ(manual.waiting(), static_cast<std::size_t>(PatientQuestions::maxOutstanding));
    manual.answerNext();
    const auto next = ask(101);
    manual.answerAll();
    EXPECT_EQ(answers.back(), 101);
}

}  // namespace
}  // namespace vantor::patient_questions_test
