#include "services/guidance/DrivingContexts.h"
#include "services/guidance/Notifications.h"
#include "services/guidance/Signs.h"

using namespace zel::kiv::common;
using guidance::DrivingContexts;
using zel::dataformats::data::Value;

// Stands still where gdb is to look: at a resource of which one slot is empty, at an element by its
// base, and at the tree that was written of them.
static void look([[maybe_unused]] DrivingContexts const& contexts,
                 [[maybe_unused]] IObjectBase const& base, [[maybe_unused]] Value const& tree)
{
}

static std::unique_ptr<ExternalResourceObject> elsewhere(char const* uri)
{
    auto made = std::make_unique<ExternalResourceObject>();
    made->setUri(uri);
    return made;
}

int main()
{
    auto context = std::make_unique<DrivingContexts::DrivingContextObject>();
    context->setActiveRoute(elsewhere("/routes/all/1"));
    context->addAreaEvents(elsewhere("/events/all/1"));
    context->addAreaEvents(elsewhere("/events/all/2"));
    context->setDistanceToUpcomingLanes(0.5);
    context->addIncludedEngines("gas");
    context->setName("\"Süd\"");
    for (bool const isSign : {true, false}) {
        auto notification = std::make_unique<guidance::Notifications::NotificationObject>();
        if (isSign) {
            notification->setObjectUri(std::make_unique<guidance::Signs::SignObject>());
        } else {
            notification->setObjectUri(elsewhere(""));
        }
        context->addNotifications(std::move(notification));
    }
    context->setPersonsInCarDetected(0);
    context->setTrailerHitchAvailable(false);

    DrivingContexts contexts;
    contexts.addObject(std::move(context));
    auto const tree = contexts.serialize();
    contexts.addObject(nullptr);
    look(contexts, *contexts.getObjects().front(), *tree);
}
