#include "tests/model/Text.h"

#include "frame/ElementStatus.h"
#include "tools/sample/Sample.h"
#include "values/values.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <thread>
#include <vector>

/// What several threads may do at the same time: read the same input, an element that nobody
/// writes, and the tables. The thread sanitizer watches it in a build of its own.
namespace {

using zel::kiv::catalogue::Resource;
using zel::kiv::catalogue::resources;

TEST(Threads, ShareWhatNobodyWrites)
{
    using namespace zel::kiv::common;
    constexpr int threadCount = 8;
    std::latch start(threadCount);
    std::atomic<std::size_t> right = 0;
    std::vector<std::unique_ptr<zel::dataformats::data::Value>> inputs;
    std::vector<std::unique_ptr<IObjectBase>> elements;
    for (Resource const& resource : resources()) {
        inputs.push_back(zel::kiv::sample::sampleOf(resource, 1));
        elements.push_back(resource.makeElement());
        elements.back()->deserialize(inputs.back().get());
    }
    auto const work = [&] {
        start.arrive_and_wait();
        for (std::size_t index = 0; index < inputs.size(); ++index) {
            auto const own = resources()[index].makeElement();
            own->deserialize(inputs[index].get());
            right += model::textOf(*own) == model::textOf(*elements[index]) ? 1 : 0;
        }
        for (auto const& [status, text] : ELEMENTSTATUSANDSTRINGMAP) {
            right += STRINGANDELEMENTSTATUSMAP.at(text) == status ? 1 : 0;
        }
    };
    std::vector<std::thread> threads(threadCount);
    for (std::thread& thread : threads) {
        thread = std::thread(work);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(right, threadCount * (inputs.size() + 8));
}

} // namespace
