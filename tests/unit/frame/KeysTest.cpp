#include <gtest/gtest.h>

#include "Forms.h"

#include "services/door/Doors.h"
#include "services/mediaplayback/Changesets.h"
#include "services/places/ChargingInformation.h"
#include "services/softwareupdate/InitialModeInstallations.h"
#include "services/softwareupdate/SoftwareTransactions.h"
#include "services/time/TimeSettings.h"

#include <ctime>

namespace frame_test {
namespace {

namespace common = zel::kiv::common;

TEST(Keys, mayBeWordsOfTheLanguage)
{
    auto const changeset =
        read<common::mediaplayback::Changesets::ChangesetObject>({Map{{"delete", {3}}}});
    EXPECT_TRUE(changeset->isDeleteSet());
    EXPECT_EQ(changeset->getDelete(), 3);
    changeset->setDelete(4);
    EXPECT_EQ(full(*changeset), R"({"delete":4})");

    common::places::ChargingInformation::ChargingInformationObject charging;
    charging.setOperator("somebody");
    EXPECT_EQ(charging.getOperator(), "somebody");
    EXPECT_EQ(full(charging), R"({"operator":"somebody"})");
}

TEST(Keys, mayBeginWithIsOrWithACapital)
{
    common::door::Doors::DoorObject door;
    EXPECT_FALSE(door.isIsDoorOnDriverSideSet());
    door.setIsDoorOnDriverSide(false);
    EXPECT_TRUE(door.isIsDoorOnDriverSideSet());
    EXPECT_EQ(full(door), R"({"isDoorOnDriverSide":false})");

    using Transaction = common::softwareupdate::SoftwareTransactions::SoftwareTransactionObject;
    auto const transaction = read<Transaction>(
        {Map{{"SPIN", text("1")}, {"SPINhash", text("2")}, {"action", text("3")}}});
    EXPECT_EQ(transaction->getSPIN() + transaction->getSPINhash() + transaction->getAction(),
              "123");
    EXPECT_EQ(full(*transaction), R"({"SPIN":"1","SPINhash":"2","action":"3"})");
    EXPECT_EQ(full(*read<Transaction>({Map{{"Action", text("3")}, {"spin", text("1")}}})), "{}");

    using common::softwareupdate::InitialModeInstallations;
    Tree const installation{Map{{"status", text("done")}}};
    EXPECT_EQ(full(*read<InitialModeInstallations>({List{installation}})),
              R"([{"status":"done"}])");
}

/// A service and a field of one name, beside a function of the C library.
TEST(Keys, mayBeTime)
{
    EXPECT_NE(::time(nullptr), 0);
    using Setting = common::time::TimeSettings::TimeSettingObject;
    auto const setting = read<Setting>(
        {Map{{"date", text("/time/valueControls/1")}, {"time", {Map{{"currentValue", {5}}}}}}});
    EXPECT_EQ(setting->getTime()->getCurrentValue(), 5.0);
    EXPECT_FALSE(setting->isTimeZoneOffsetSet());
    EXPECT_EQ(full(*setting), R"({"date":{"id":"1","uri":"/time/valueControls/1"},)"
                              R"("time":{"currentValue":5.0}})");
    EXPECT_EQ(shallow(*setting), R"({"date":"/time/valueControls/1","time":""})");
}

} // namespace
} // namespace frame_test
