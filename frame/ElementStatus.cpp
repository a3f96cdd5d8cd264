#include "frame/ElementStatus.h"

// The only static initialisation of the library: ten objects, in this order.

namespace {

std::string const created{"created"};
std::string const serviceReady{"serviceReady"};
std::string const pending{"pending"};
std::string const clientReady{"clientReady"};
std::string const serviceSuccessful{"serviceSuccessful"};
std::string const serviceNotSuccessful{"serviceNotSuccessful"};
std::string const ongoing{"ongoing"};
std::string const failed{"failed"};

} // namespace

namespace zel::kiv::common {

std::map<ElementStatus, std::string> const ELEMENTSTATUSANDSTRINGMAP{
    {ElementStatus::Created, created},
    {ElementStatus::ServiceReady, serviceReady},
    {ElementStatus::Pending, pending},
    {ElementStatus::ClientReady, clientReady},
    {ElementStatus::ServiceSuccessful, serviceSuccessful},
    {ElementStatus::ServiceNotSuccessful, serviceNotSuccessful},
    {ElementStatus::Ongoing, ongoing},
    {ElementStatus::Failed, failed},
};

std::map<std::string, ElementStatus> const STRINGANDELEMENTSTATUSMAP{
    {created, ElementStatus::Created},
    {serviceReady, ElementStatus::ServiceReady},
    {pending, ElementStatus::Pending},
    {clientReady, ElementStatus::ClientReady},
    {serviceSuccessful, ElementStatus::ServiceSuccessful},
    {serviceNotSuccessful, ElementStatus::ServiceNotSuccessful},
    {ongoing, ElementStatus::Ongoing},
    {failed, ElementStatus::Failed},
};

} // namespace zel::kiv::common
