#include "platform/RecordingProgress.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvane {
namespace {

TEST(RecordingProgress, AnswersOnceWithWhateverEndedTheRecordingFirst) {
    std::vector<std::string> answers;
    const auto handler = [&answers](const std::string& error) { answers.push_back(error); };

    RecordingProgress finished(handler);
    EXPECT_TRUE(finished.begins(true, ""));
    finished.stopRequested();
    finished.report("");
    // The stream reports its own stop after the file output finished.
    finished.report("the stream stopped");
    EXPECT_EQ(answers, (std::vector<std::string>{""}));

    answers.clear();
    RecordingProgress stoppedEarly(handler);
    stoppedEarly.stopRequested();
    EXPECT_FALSE(stoppedEarly.begins(true, ""));
    EXPECT_EQ(answers, (std::vector<std::string>{"stopped before it began"}));

    answers.clear();
    RecordingProgress nothingToFilm(handler);
    EXPECT_FALSE(nothingToFilm.begins(false, "the display or window is gone"));
    nothingToFilm.report("");
    EXPECT_EQ(answers, (std::vector<std::string>{"the display or window is gone"}));

    answers.clear();
    RecordingProgress forgotten(handler);
    EXPECT_TRUE(forgotten.begins(true, ""));
    forgotten.forget();
    forgotten.report("");
    EXPECT_TRUE(answers.empty());
}

}  // namespace
}  // namespace quorvane
