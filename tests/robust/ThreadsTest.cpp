#include "tests/robust/Samples.h"

#include "frame/ElementStatus.h"
#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <memory>
#include <thread>
#include <vector>

/// What several threads may do at the same time: read the same input, and the tables. The thread
/// sanitizer watches it in a build of its own.
namespace {

using namespace zel::dataformats::data;
using namespace zel::kiv::common;
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
    std::vector<std::unique_ptr<Array>> inputs;
    std::vector<std::unique_ptr<Value>> forms;
    for (auto const& resource : resources()) {
        inputs.push_back(samples::arrayOf(resource));
        auto const target = resource.makeResource();
        target->deserialize(inputs.back().get());
        forms.push_back(target->serialize());
    }
    std::atomic<std::size_t> right = 0;
    inEightThreads([&] {
        for (std::size_t index = 0; index < inputs.size(); ++index) {
            auto const target = resources()[index].makeResource();
            target->deserialize(inputs[index].get());
            right += samples::same(target->serialize().get(), forms[index].get()) ? 1 : 0;
        }
    });
    EXPECT_EQ(right, threadCount * inputs.size());
}

TEST(Threads, ShareWhatNobodyWrites)
{
    auto const& resource = *zel::kiv::catalogue::find("radio", "presets");
    auto const target = resource.makeElement();
    target->deserialize(samples::objectOf(resource, samples::Fields::All).get());
    auto const form = target->serialize(SerializationType::Full);
    std::atomic<int> right = 0;
    inEightThreads([&] {
        for (int round = 0; round < 200; ++round) {
            right += samples::same(target->serialize(SerializationType::Full).get(), form.get());
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
