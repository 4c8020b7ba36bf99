#include "app/place_argument.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>
#include <vector>

#include "app/command_line.h"
#include "dialogs/configure.h"
#include "forms/form_configure.h"
#include "places/zones.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {
namespace {

// How many letters are to be put in, left out or changed to make one text of the other.
int LettersApart(const QString& One, const QString& Other) {
    std::vector<int> Row(static_cast<std::size_t>(Other.size()) + 1);
    std::iota(Row.begin(), Row.end(), 0);
    for (const QChar Letter : One) {
        int Corner = Row[0]++;
        for (std::size_t Place = 1; Place < Row.size(); ++Place) {
            const int Change = Corner + (Letter == Other[static_cast<qsizetype>(Place) - 1] ? 0 : 1);
            Corner = Row[Place];
            Row[Place] = std::min({Change, Row[Place] + 1, Row[Place - 1] + 1});
        }
    }
    return Row.back();
}

QStringList CityNames() {
    QStringList Names;
    for (int City = 0; City < FormConfigure.ComboCityName.ListCount(); ++City) {
        Names.append(QString::fromStdString(FormConfigure.ComboCityName.List(City)));
    }
    return Names;
}

QString TownOf(const QString& Name) { return Name.section(',', 0, 0); }

// The three names that are least apart from the text.
QString NearestTo(const QString& Text, QStringList Names) {
    Names.removeDuplicates();
    const auto Distance = [Wanted = Text.toLower()](const QString& Name) {
        return std::min(LettersApart(Wanted, Name.toLower()), LettersApart(Wanted, TownOf(Name).toLower()));
    };
    std::ranges::stable_sort(Names, {}, Distance);
    return Names.mid(0, 3).join("; ");
}

// Its place in the list of the Configure dialog.
int CityOf(const QString& Text) {
    const QStringList Names = CityNames();
    QStringList Found;
    for (const QString& Name : Names) {
        if (Name.compare(Text, Qt::CaseInsensitive) == 0) return static_cast<int>(Names.indexOf(Name));
        if (TownOf(Name).compare(Text, Qt::CaseInsensitive) == 0) Found.append(Name);
    }
    if (Found.size() == 1) return static_cast<int>(Names.indexOf(Found.constFirst()));
    if (Found.isEmpty())
        throw UsageError("no city is called " + Text + "; the nearest names are " + NearestTo(Text, Names));
    throw UsageError("there is more than one " + Text + ": " + Found.join("; "));
}

// Two numbers with a comma between them.
std::optional<std::pair<double, double>> DegreesOf(const QString& Text) {
    bool IsLatitude = false;
    bool IsLongitude = false;
    const double Latitude = Text.section(',', 0, 0).toDouble(&IsLatitude);
    const double Longitude = Text.section(',', 1).toDouble(&IsLongitude);
    if (!IsLatitude || !IsLongitude) return std::nullopt;
    return std::pair(Latitude, Longitude);
}

// What the dialog's lists have for it.
float InWholeMinutes(double Degrees, double Most) {
    return Single(Fix(std::clamp(Degrees, -Most, Most) * 60.0) / 60.0);
}

}  // namespace

void TakePlace(const QString& Text) {
    state.ConfigureArmed = True;
    const auto Degrees = DegreesOf(Text);
    if (!Degrees) {
        FormConfigure.ComboCityName.ListIndex = CityOf(Text);
        ZoneFromLocation();
        TakeListedPlace();
        TakeListedZone();
        return;
    }
    const auto [Latitude, Longitude] = *Degrees;
    if (!(Latitude > -70.0 && Latitude < 80.0 && std::abs(Longitude) <= 180.0)) {
        throw UsageError("--place takes degrees from -70 to 80, -180 to 180, not " + Text);
    }
    ShowPlaceInLists(InWholeMinutes(Latitude, 80.0), InWholeMinutes(Longitude, 179.99));
    ZoneFromLocation();
    TakeListedZone();
    state.LocationName = "";
    state.LocationLat = Latitude;
    state.LocationLong = Single(Longitude);
}

}  // namespace gloamtide
