#include "pagetable.h"

#include "formpage.h"
#include "ui_connectpage.h"
#include "ui_faultlimitspage.h"
#include "ui_goalspage.h"
#include "ui_machinepage.h"
#include "ui_testingpage.h"
#include "ui_tuningpage.h"
#include "ui_welcomepage.h"

#include <cstring>

namespace {

template <typename Form> QWidget *build()
{
    return new FormPage<Form>;
}

} // namespace

const std::vector<PageInfo> &pageTable()
{
    static const std::vector<PageInfo> table = {
        {"welcome", QT_TRANSLATE_NOOP("MW", "Welcome!"), ":/icons/resourceSource/Start.png", "/help/Velbrin.htm",
         "/wiki/Velbrin_user_guide", "WelcomePage", false, &build<Ui_WelcomePage>},
        {"connect", QT_TRANSLATE_NOOP("MW", "Connect"), ":/icons/resourceSource/connect-icon.png",
         "/help/Connect tab.htm", "/wiki/Velbrin_user_guide/Connect", "ConnectPage", false, &build<Ui_ConnectPage>},
        {"goals", QT_TRANSLATE_NOOP("MW", "Goals"), ":/icons/resourceSource/goals-gauge-icon.png",
         "/help/Goals tab.htm", "/wiki/Velbrin_user_guide/Goals", "GoalsPage", true, &build<Ui_GoalsPage>},
        {"machine", QT_TRANSLATE_NOOP("MW", "Machine"), ":/icons/resourceSource/machine-gear-icon.png",
         "/help/Machine tab.htm", "/wiki/Velbrin_user_guide/Machine", "MachinePage", true, &build<Ui_MachinePage>},
        {"tuning", QT_TRANSLATE_NOOP("MW", "Tuning"), ":/icons/resourceSource/tuning-Adjustable-Wrench-icon.png",
         "/help/Tuning tab.htm", "/wiki/Velbrin_user_guide/Tuning", "TuningPage", true, &build<Ui_TuningPage>},
        {"fault-limits", QT_TRANSLATE_NOOP("MW", "Fault limits"), ":/icons/resourceSource/trafficlight3d.png",
         "/help/Fault limits tab.htm", "/wiki/Velbrin_user_guide/Fault_limits", "FaultLimitsPage", true,
         &build<Ui_FaultLimitsPage>},
        {"testing", QT_TRANSLATE_NOOP("MW", "Testing"), ":/icons/resourceSource/Activity-Monitor-icon.png",
         "/help/Testing tab.htm", "/wiki/Velbrin_user_guide/Testing", "TestingPage", false, &build<Ui_TestingPage>},
    };
    return table;
}

int pageIndex(const char *name)
{
    const auto &table = pageTable();
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (std::strcmp(table[i].name, name) == 0)
            return int(i);
    }
    return -1;
}
