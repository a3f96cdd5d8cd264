#include "tests/model/Samples.h"

#include "frame/ElementStatus.h"
#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <memory>
#include <thread>
#include <vector>

/// What several threads may do at the same time: read the same input, and the tables. The thread
/// sanitizer watches it in a build of its own.
namespace {

using namespace samples;
using namespace zel::kiv::common;
using zel::dataformats::data::Value;
using zel::kiv::catalogue::resources;

constexpr int threadCount = 8;

/// Runs `work` in all threads at once.
template <typename Work>
void inEightThreads(Work work)
{
    std::latch start(threadCount);
    std::vector<std::thread> threads;
    for (int number = 0; number < threadCount; ++number) {
        threads.emplace_back([&] {
            start.arrive_and_wait();
            work();
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

TEST(Threads, ShareTheirInput)
{
    std::vector<Tree> forms;
    std::vector<std::unique_ptr<Value>> inputs;
    for (Resource const& resource : resources()) {
        forms.push_back({Tree::List{sampleOf(&resource, 0, 1), sampleOf(&resource, 1, 1)}});
        inputs.push_back(model::valueOf(forms.back()));
    }
    std::atomic<std::size_t> right = 0;
    inEightThreads([&] {
        for (std::size_t index = 0; index < inputs.size(); ++index) {
            auto const target = resources()[index].makeResource();
            target->deserialize(inputs[index].get());
            auto const form = model::treeOf(target->serialize().get());
            right += model::difference(forms[index], form).empty() ? 1 : 0;
        }
    });
    EXPECT_EQ(right, threadCount * inputs.size());
}

TEST(Threads, ShareWhatNobodyWrites)
{
    auto const& resource = *zel::kiv::catalogue::find("radio", "presets");
    Tree const form = sampleOf(&resource, 0, 1);
    auto const target = elementFrom(resource, form);
    std::atomic<int> right = 0;
    inEightThreads([&] {
        for (int round = 0; round < 200; ++round) {
            right += model::difference(form, fullOf(*target)).empty() ? 1 : 0;
        }
    });
    EXPECT_EQ(right, threadCount * 200);
}

TEST(Threads, ShareTheStatusTables)
{
    std::atomic<int> right = 0;
    inEightThreads([&] {
        for (auto const& [status, text] : ELEMENTSTATUSANDSTRINGMAP) {
            right += STRINGANDELEMENTSTATUSMAP.at(text) == status ? 1 : 0;
        }
    });
    EXPECT_EQ(right, threadCount * 8);
}

} // namespace
