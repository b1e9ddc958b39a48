// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#include "properties/LabelSettings.h"

#include "cups/DriverSettings.h"
#include "cups/Rounding.h"
#include "cups/Units.h"
#include "properties/ModelFamily.h"

#include <cmath>

namespace {

// How a value is converted from the option to the form and back.

struct AsItIs
{
    template<class Value>
    static Value toForm(const Value &value, const CupsSupport &)
    {
        return value;
    }
    template<class Value>
    static Value toOption(const Value &value, const CupsSupport &)
    {
        return value;
    }
};

struct Millimetres
{
    static double toForm(double millimetres, const CupsSupport &) { return millimetres / millimetresPerInch; }
    static double toOption(double inches, const CupsSupport &) // to the thousandth
    {
        return roundHalfUp(inches * millimetresPerInch * 1000) / 1000.0;
    }
};

struct VerticalDots
{
    static double toForm(int dots, const CupsSupport &cups) { return dots / cups.getResolution().height(); }
    static int toOption(double inches, const CupsSupport &cups)
    {
        return roundHalfUp(inches * cups.getResolution().height());
    }
};

// Calls a function for each setting with our keyword (null if every driver has the setting), the member, the option's
// getter and setter, and the conversion.
template<class Function>
void forEachSetting(Function function)
{
    using S = LabelSettings;
    using C = CupsSupport;
    function(nullptr, &S::orientation, &C::getOrientation, &C::setOrientation, AsItIs());
    function("MirrorPrint", &S::mirror, &C::getMirror, &C::setMirror, AsItIs());
    function("NegativePrint", &S::inverse, &C::getInverse, &C::setInverse, AsItIs());
    function("PrintSpeed", &S::speed, &C::getSpeed, &C::setSpeed, AsItIs());
    function("Darkness", &S::darkness, &C::getDarkness, &C::setDarkness, AsItIs());
    function("LabelCategory", &S::category, &C::getCategory, &C::setCategory, AsItIs());
    function("GapSize", &S::gapSize, &C::getGapSize, &C::setGapSize, Millimetres());
    function("GapOffset", &S::gapOffset, &C::getGapOffset, &C::setGapOffset, Millimetres());
    function("MarkSize", &S::markSize, &C::getMarkSize, &C::setMarkSize, Millimetres());
    function("MarkOffset", &S::markOffset, &C::getMarkOffset, &C::setMarkOffset, Millimetres());
    function("CutMedia", &S::cut, &C::getCut, &C::setCut, AsItIs());
    function("Feed", &S::feed, &C::getFeed, &C::setFeed, VerticalDots());
    function("Back", &S::back, &C::getBack, &C::setBack, AsItIs());
    function("Overlap", &S::overlap, &C::getOverlap, &C::setOverlap, AsItIs());
    function("Shift", &S::shift, &C::getShift, &C::setShift, Millimetres());
    function("Stop", &S::stop, &C::getStop, &C::setStop, Millimetres());
    function("JobStart", &S::jobStart, &C::getJobStart, &C::setJobStart, AsItIs());
    function("LabelStart", &S::labelStart, &C::getLabelStart, &C::setLabelStart, AsItIs());
    function("LabelEnd", &S::labelEnd, &C::getLabelEnd, &C::setLabelEnd, AsItIs());
    function("JobEnd", &S::jobEnd, &C::getJobEnd, &C::setJobEnd, AsItIs());
    function("OffsetH", &S::offsetH, &C::getOffsetH, &C::setOffsetH, AsItIs());
    function("OffsetV", &S::offsetV, &C::getOffsetV, &C::setOffsetV, AsItIs());
}

// Infinity and NaN, which an option can contain, cannot be shown.
template<class Value>
bool isShowable(const Value &)
{
    return true;
}

bool isShowable(double value)
{
    return std::isfinite(value);
}

} // namespace

LabelSettings LabelSettings::withoutPrinter(const ModelFamily &family)
{
    LabelSettings settings;
    settings.orientation = CupsSupport::Landscape;
    settings.mirror = false;
    settings.inverse = false;
    settings.speed = 2;
    settings.darkness = family.fallbackDarkness;
    settings.category = CupsSupport::Continuous;
    settings.cut = 4;
    settings.feed = 0.0;
    settings.back = 2;
    settings.overlap = 12;
    settings.*family.stopField() = 30.0 / millimetresPerInch;
    settings.offsetH = 0;
    settings.offsetV = 0;
    return settings;
}

LabelSettings LabelSettings::read(const CupsSupport &cups, const DriverSettings &driver)
{
    LabelSettings settings;
    forEachSetting([&](const char *keyword, auto member, auto get, auto, auto unit) {
        if (keyword && !driver.holds(keyword))
            return;
        const auto value = unit.toForm((cups.*get)(), cups);
        if (isShowable(value))
            settings.*member = value;
    });
    return settings;
}

void LabelSettings::forgetSame(const LabelSettings &other)
{
    forEachSetting([&](const char *, auto member, auto, auto, auto) {
        if (this->*member == other.*member)
            (this->*member).reset();
    });
}

void LabelSettings::write(CupsSupport &cups) const
{
    forEachSetting([&](const char *, auto member, auto, auto set, auto unit) {
        if (const auto &value = this->*member)
            (cups.*set)(unit.toOption(*value, cups));
    });
}
