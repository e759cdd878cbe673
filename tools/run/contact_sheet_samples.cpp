#include "contact_sheet_samples.h"

#include "base_image_contact_sheet.h"
#include "core/error.h"
#include "ground/ground_randomiser.h"
#include "imaging/picture_reader.h"
#include "imaging/recolouring.h"
#include "sets/cloud_cover.h"
#include "sets/colour_settings.h"
#include "sets/slider_values.h"

namespace morvane {

namespace {

struct Sample {
    const char16_t* caption;
    const char16_t* file;
};

constexpr Sample samples[] = {
    {u"City, summer", u"029h2su6.bmp"},      {u"Crops, spring", u"004b2sp2.bmp"},
    {u"Rural, fall", u"007b2fa2.bmp"},       {u"Forest, summer", u"011b2su5.bmp"},
    {u"Swamp, summer", u"016b2su3.bmp"},     {u"Desert, summer", u"003b2su3.bmp"},
    {u"Grassland, winter", u"006a2wi7.bmp"},
};

Picture recoloured(const ColourValues& colours, const Picture& base) {
    cDIBSection source, result;
    source.CreateFromPicture(base);
    if (!result.Create(source.Width(), source.Height())) throw Error(ErrorCode::outOfMemory);
    recolour(colours, source, result);
    const std::uint8_t* pixels = result.DIBSectionBitsPtr();
    return {base.width, base.height, std::vector<std::uint8_t>(pixels, pixels + base.rows.size())};
}

} // namespace

void writeContactSheet(Session& session, const QString& target) {
    QStringList titles{u"Base"_s};
    std::vector<ColourValues> coverColours;
    for (int number = 1; number <= cloudCoverCount; ++number) {
        SliderValues sliders{};
        getRandomGroundValues(session, number, sliders);
        coverColours.push_back(effectiveColours(sliders));
        titles << cloudCover(number)->word;
    }
    std::vector<ContactRow> rows;
    for (const Sample& sample : samples) {
        const FilePath file = session.AppPath / u"Resources\\GENERIC WORLD" / sample.file;
        ContactRow row{QStringView(sample.caption).toString(), {loadPicture(session.files, file)}};
        const Picture base = row.pictures.front();
        for (const ColourValues& colours : coverColours)
            row.pictures.push_back(recoloured(colours, base));
        rows.push_back(row);
    }
    if (!contactSheet(rows, titles).save(target)) throw Error(ErrorCode::cannotOpenForWriting, target);
}

} // namespace morvane
