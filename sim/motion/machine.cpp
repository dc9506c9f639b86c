#include "machine.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace sim {

namespace {

struct Property
{
    const char *name;
    double Machine::*member;
    double ifNamed; ///< when no number is given
    double minimum, maximum;
    const char *help;
};

/// One more is a row here, a member of Machine, and the place where it acts.
const Property propertyTable[] = {
    {"flexible", &Machine::springHz, 60, 5, 1000, "the load hangs on a spring: their resonance, Hz"},
    {"damping", &Machine::springDamping, 0.02, 0, 0.7, "of that spring, 1 = critical"},
    {"ratio", &Machine::inertiaRatio, 2, 0.1, 20, "inertia of the load over the motor's"},
    {"backlash", &Machine::backlash, 40, 0, 5000, "play between motor and load, counts"},
    {"hanging", &Machine::hanging, 0.5, 0, 2, "a weight that falls when nothing holds it, Nm"},
    {"inertia", &Machine::inertia, 3e-4, 1e-5, 1e-2, "of the whole axis, kg m² (plain: 0.0001)"},
    {"dry", &Machine::dryFriction, 0.15, 0, 1, "dry friction, Nm (plain: 0.02)"},
    {"viscous", &Machine::viscousFriction, 2e-3, 0, 0.1, "viscous friction, Nm s/rad (plain: 0.0001)"},
    {"ripple", &Machine::ripple, 0.05, 0, 0.5, "torque ripple, share of the torque"},
    {"cogging", &Machine::cogging, 0.05, 0, 0.5, "cogging torque, Nm"},
    {"noise", &Machine::encoderNoise, 2, 0, 100, "encoder noise, counts rms"},
    {"seed", &Machine::seed, 2, 1, 1e6, "another noise, the same each time"},
    {"sag", &Machine::sag, 0.5, 0, 20, "supply lost while the motor is powered, percent a second"},
    {"reversed", &Machine::feedbackReversed, 1, 0, 1, "wiring fault: the encoder counts backwards"},
    {"swapped", &Machine::phasesSwapped, 1, 0, 1, "wiring fault: two motor phases are swapped"},
    {"poles", &Machine::polePairs, 3, 1, 50, "wiring fault: a motor with this many pole pairs (plain: 4)"},
    {"stuck-positive", &Machine::positiveStuck, 1, 0, 1, "wiring fault: positive limit switch always open"},
    {"stuck-negative", &Machine::negativeStuck, 1, 0, 1, "wiring fault: negative limit switch always open"},
    {"slipping", &Machine::brakeSlip, 0.3, 0.01, 2, "fault: the brake holds no more than this, Nm"},
};

bool belongsToTwoMasses(const Property &property)
{
    return property.member == &Machine::springDamping || property.member == &Machine::inertiaRatio;
}

std::string parseProperty(const std::string &text, Machine &machine, bool &needsTwoMasses)
{
    const std::size_t equals = text.find('=');
    const std::string name = text.substr(0, equals);
    const auto property = std::find_if(std::begin(propertyTable), std::end(propertyTable),
                                       [&](const Property &candidate) { return name == candidate.name; });
    if (property == std::end(propertyTable))
        return "there is no load \"" + name + "\"";
    double value = property->ifNamed;
    if (equals != std::string::npos) {
        // Not strtod: a comma would be the decimal point where the user's language has one.
        std::istringstream number(text.substr(equals + 1));
        number.imbue(std::locale::classic());
        if (!(number >> value) || number.peek() != std::istringstream::traits_type::eof())
            return "\"" + text + "\" is not of the form NAME[=NUMBER]";
    }
    if (!(value >= property->minimum && value <= property->maximum)) {
        std::ostringstream error;
        error.imbue(std::locale::classic());
        error << '"' << text << "\" is not between " << property->minimum << " and " << property->maximum;
        return error.str();
    }
    machine.*property->member = value;
    needsTwoMasses = needsTwoMasses || belongsToTwoMasses(*property);
    return {};
}

} // namespace

std::string parseMachine(const std::string &text, Machine &machine)
{
    Machine parsed;
    bool needsTwoMasses = false;
    std::istringstream list(text + "+");
    for (std::string one; std::getline(list, one, '+');) {
        const std::string error = parseProperty(one, parsed, needsTwoMasses);
        if (!error.empty())
            return error;
    }
    if (needsTwoMasses && !parsed.isTwoMasses())
        return "\"" + text + "\": a damping or ratio goes with \"flexible\" or \"backlash\"";
    machine = parsed;
    return {};
}

std::string machineHelp()
{
    constexpr std::size_t column = 21;
    std::ostringstream help;
    help.imbue(std::locale::classic());
    for (const Property &property : propertyTable) {
        std::ostringstream name;
        name.imbue(std::locale::classic());
        name << property.name;
        if (property.maximum > 1.0 || property.ifNamed != 1.0)
            name << '[' << '=' << property.ifNamed << ']';
        const std::string text = name.str();
        help << "  " << text << std::string(std::max(column, text.size() + 1) - text.size(), ' ') << property.help
             << '\n';
    }
    return help.str();
}

} // namespace sim
