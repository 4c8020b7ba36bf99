#include "app/still_picture.h"

#include <QPainter>
#include <QPixmap>
#include <algorithm>

#include "app/place_argument.h"
#include "clock/clock.h"
#include "clock/recomputation.h"
#include "forms/form_gt_main.h"
#include "frame/startup.h"
#include "map/day_night.h"
#include "platform/qt/picture_view.h"
#include "state/extras.h"
#include "sundial/mottos.h"

namespace gloamtide {
namespace {

// What the command line asks otherwise than the configuration has it.
void ChangeConfiguration(const StillOptions& Asked) {
    if (Asked.At) state.OffsetDays = 0.0;
    if (Asked.Map) {
        state.MapType = Asked.Map == MapChoice::Political ? 1 : 0;
        extras.TerrainShown = Asked.Map == MapChoice::Terrain ? True : False;
    }
    for (const auto& [Flag, Value] : Asked.Shown) *Flag = Value;
}

}  // namespace

StillPicture::StillPicture(const StillOptions& TheAsked) : Asked(TheAsked), Desktop(TheAsked) {
    state.StartupSource = Asked.Configuration.empty() ? ConfigurationSource::Defaults : ConfigurationSource::NamedFile;
    state.ConfigFilePath = Asked.Configuration;
    ConfigurationRead = [this] { ChangeConfiguration(Asked); };
    StartProgram();
    ConfigurationRead = nullptr;
    if (Asked.OnlyMap && !Asked.Size.isEmpty()) {
        Desktop.WindowOf(FormGTMain)
            ->FixScale(
                std::min(1.0 * Asked.Size.width() / state.MapWidth, 1.0 * Asked.Size.height() / state.MapHeight));
    }
    if (!Asked.Place.isEmpty()) {
        TakePlace(Asked.Place);
        Show(Desktop.Clock);
    }
}

void StillPicture::ShowAlmanac(const DateTime& Reading) {
    Desktop.Clock = Reading;
    ReadSystemClock();
    ChooseMotto();
    state.CurrentJD = state.SystemJD + state.OffsetDays;
    // A time that the almanac has no words for leaves the caption as it was: nothing of the instant before stays.
    const auto Class = static_cast<std::size_t>(state.ScreenClass);
    FormGTMain.LabelLocSunriseShow[Class].Caption = FormGTMain.LabelLocSunsetShow[Class].Caption = "";
    RecomputeAlmanac();
}

void StillPicture::Show(const DateTime& Reading) {
    ShowAlmanac(Reading);
    RedrawMap();
}

QImage StillPicture::Picture() { return Asked.OnlyMap ? MapAlone() : Desktop.WindowOf(FormGTMain)->grab().toImage(); }

// The map alone, in the middle of a picture of the given size or, where that is empty, with nothing round it.
QImage StillPicture::MapAlone() {
    auto* Map = Desktop.WindowOf(FormGTMain)->findChild<PictureView*>("PictureGT");
    const QRect Shown = Map->InnerArea();
    const double Ratio = Map->devicePixelRatioF();
    const QSize Size = Asked.Size.isEmpty() ? (QSizeF(Shown.size()) * Ratio).toSize() : Asked.Size;
    QImage Result(Size, QImage::Format_RGB32);
    if (Result.isNull()) return Result;
    Result.setDevicePixelRatio(Ratio);
    Result.fill(Qt::black);
    const QSize Around = Asked.Size.isEmpty() ? QSize() : Size - Shown.size();
    Map->render(&Result, {std::max(0, Around.width()) / 2, std::max(0, Around.height()) / 2}, Shown);
    return Result;
}

}  // namespace gloamtide
