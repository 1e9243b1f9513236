#include "ShowOptions.h"

#include "BlockList.h"
#include "DatabaseCore.h"
#include "ObjectTable.h"
#include "Scene.h"
#include "WellKnownObjects.h"
#include "handleText.h"
#include "textCodec.h"

#include <CLI/CLI.hpp>

#include <charconv>
#include <cmath>
#include <functional>

namespace orvex {

namespace {

// Repeated entities, unless --limit says otherwise: a picture of some ten megabytes.
constexpr std::int64_t kMostInInsert = 50'000;
constexpr std::int64_t kMostInPicture = 100'000;

// "WxH" in pixels.
std::optional<PictureSize> parseSize(const std::string& text) {
    const auto number = [](const char* first, const char* last) {
        int value = 0;
        const auto result = std::from_chars(first, last, value);
        return result.ec == std::errc() && result.ptr == last ? value : 0;
    };
    const std::size_t cross = text.find('x');
    if (cross == std::string::npos) {
        return std::nullopt;
    }
    const int width = number(text.data(), text.data() + cross);
    const int height = number(text.data() + cross + 1, text.data() + text.size());
    if (width <= 0 || height <= 0) {
        return std::nullopt;
    }
    return PictureSize{width, height};
}

// "X1,Y1,X2,Y2", two opposite corners.
std::optional<PlanBox> parseWindow(const std::string& text) {
    std::vector<double> numbers;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (numbers.size() < 4) {
        double value = 0.0;
        const auto result = std::from_chars(at, end, value);
        if (result.ec != std::errc() || !std::isfinite(value)) {
            return std::nullopt;
        }
        numbers.push_back(value);
        at = result.ptr;
        if (numbers.size() < 4 && (at == end || *at++ != ',')) {
            return std::nullopt;
        }
    }
    PlanBox box;
    box.include(PlanPoint{numbers[0], numbers[1]});
    box.include(PlanPoint{numbers[2], numbers[3]});
    const bool hasSides = box.low.x < box.high.x && box.low.y < box.high.y &&
                          std::isfinite(box.high.x - box.low.x) &&
                          std::isfinite(box.high.y - box.low.y);
    return at == end && hasSides ? std::optional(box) : std::nullopt;
}

std::optional<std::int64_t> parseLimit(const std::string& text) {
    constexpr std::int64_t kGreatest = 1'000'000'000;
    std::int64_t value = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    const bool isNumber = result.ec == std::errc() && result.ptr == end;
    return isNumber && value > 0 && value <= kGreatest ? std::optional(value) : std::nullopt;
}

// An option whose text is parsed at once; what can't be parsed is a wrong call.
template <class Parse, class Take>
CLI::Option* addParsed(CLI::App& options, const char* name, const char* type, const char* purpose,
                       const char* complaint, Parse parse, Take take) {
    return options
        .add_option_function<std::string>(
            name, [=](const std::string& text) { take(*parse(text)); }, purpose)
        ->type_name(type)
        ->check([=](const std::string& text) {
            return parse(text) ? std::string() : std::string(complaint);
        });
}

Failure wrongCall(std::string text) {
    return {FailureCause::wrongCall, {}, 0, std::move(text)};
}

} // namespace

void ShowOptions::add(CLI::App& options) {
    CLI::Option* const size =
        addParsed(options, "--size", "WxH", "Its size in pixels",
                  "the size is two numbers of pixels, as in 1600x1200", parseSize,
                  [this](const PictureSize& given) { m_picture.size = given; })
            ->default_str("1600x1200");
    addParsed(options, "--window", "X1,Y1,X2,Y2", "What to show, two corners in drawing units",
              "a window is two corners, as in 0,0,420,297", parseWindow,
              [this](const PlanBox& box) { m_picture.window = box; });
    options.add_option("--layers", m_layers, "Show what is on these layers only")
        ->delimiter(',')
        ->type_name("NAME,...")
        ->allow_extra_args(false);
    options
        .add_option_function<std::string>(
            "--background",
            [this](const std::string& word) {
                m_picture.ground = word == "dark"    ? PictureGround::dark
                                   : word == "light" ? PictureGround::light
                                                     : PictureGround::transparent;
            },
            "dark, light or transparent")
        ->default_str("light")
        ->check(CLI::IsMember({"dark", "light", "transparent"}));
    options.add_flag("--lineweights", m_picture.lineweights,
                     "Draw lines as thick as the drawing says");
    CLI::Option* const paper =
        addParsed(options, "--paper", "A0...A4", "A sheet for .svg and .pdf, true to scale",
                  "the paper is A0, A1, A2, A3 or A4", parsePaper,
                  [this](const PaperFormat& format) { m_paper = format; });
    CLI::Option* const scale =
        addParsed(options, "--scale", "1:N", "The scale on paper", "the scale is as in 1:50",
                  parseScale, [this](double given) { m_scale = given; });
    addParsed(
        options, "--unit", "UNIT",
        "mm, cm, dm, m, km, in, ft, yd or mi: what the drawing is measured in; else as it says",
        "the unit is mm, cm, dm, m, km, in, ft, yd or mi",
        [](const std::string& name) { return unitMillimetres(name); },
        [this](double unit) { m_unit = unit; })
        ->needs(scale);
    paper->needs(scale)->excludes(size);
    scale->needs(paper);
    options.add_option("--highlight", m_highlighted, "Entities to show in a colour of their own")
        ->delimiter(',')
        ->type_name("HANDLE,...")
        ->allow_extra_args(false);
    options.add_flag("--numbers", m_picture.numbers, "Write handles beside the multilines");
    addParsed(options, "--limit", "N",
              "How many entities blocks within blocks may repeat; 50000 in an insert and 100000 in "
              "all of them without",
              "the limit is a number of entities, from 1 to 1000000000", parseLimit,
              [this](std::int64_t limit) { m_limit = limit; });
}

std::optional<Failure> ShowOptions::check(PictureKind kind) const {
    if (!m_paper) {
        return checkPicture(kind, m_picture.size);
    }
    return kind == PictureKind::png
               ? std::optional(wrongCall("a picture on paper has to be .svg or .pdf"))
               : std::nullopt;
}

Result<PictureOptions> ShowOptions::apply(Scene& scene, const DatabaseCore& core) const {
    PictureOptions picture = m_picture;
    std::vector<std::wstring> layers;
    for (const std::string& name : m_layers) {
        layers.push_back(widen(name));
        if (core.wellKnown().findLayer(layers.back()) == nullptr) {
            return wrongCall("there is no layer " + name);
        }
    }
    if (!layers.empty()) {
        scene.showOnlyLayers(layers);
    }
    scene.limitRepetitions(m_limit.value_or(kMostInInsert), m_limit.value_or(kMostInPicture));
    for (const std::string& text : m_highlighted) {
        const auto handle = parseHandle(text);
        KdDbStub* const stub = handle ? core.objects().findHandle(*handle) : nullptr;
        const bool isEntity = stub != nullptr &&
                              (stub->kind == ObjectKind::mline || stub->kind == ObjectKind::entity);
        if (!isEntity || core.blocks().blockOf(*stub) != &core.blocks().modelSpace()) {
            return wrongCall("there is no entity " + text + " in model space");
        }
        picture.highlighted.push_back(stub);
    }
    if (m_paper) {
        const double unit =
            m_unit.value_or(unitMillimetres(core.variables().integerWithin("INSUNITS", 0, 24, 0)));
        picture.sheet = PictureSheet{*m_paper, m_scale / unit};
    }
    return picture;
}

} // namespace orvex
