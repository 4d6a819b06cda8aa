#include "Cli/PreviewCommand.h"

#include "Cli/Format.h"
#include "Cli/Services.h"
#include "Cli/SubtitleOptions.h"
#include "Cli/Values.h"
#include "Common/MediaItemSession.h"
#include "Common/SessionError.h"

#include "Core/FileSystem.h"
#include "Proc/MediaInfo.h"
#include "Proc/Preview.h"
#include "Proc/Settings.h"
#include "Transcoder/Preset.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <ostream>
#include <stdexcept>

namespace Korvex::Cli
{

namespace
{

/// The picture with square pixels, as people see it: the narrow side is stretched, nothing is lost.
QImage ToImage(Proc::RgbaImage const& picture)
{
    QImage const image(picture.rgba.data(), picture.width, picture.height, picture.width * 4, QImage::Format_RGBA8888);
    double const aspect =
        static_cast<double>(picture.sampleAspectNumerator) / std::max(1, picture.sampleAspectDenominator);
    // A shape that no screen has is damage, and would need a picture of any size.
    constexpr double mostStretch = 16.0;
    if (aspect == 1.0 || aspect > mostStretch || aspect < 1.0 / mostStretch)
        return image.convertToFormat(QImage::Format_RGB888);
    QSize const size = aspect > 1.0 ? QSize(static_cast<int>(std::lround(picture.width * aspect)), picture.height)
                                    : QSize(picture.width, static_cast<int>(std::lround(picture.height / aspect)));
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB888);
}

bool IsPngName(ioPath const& path)
{
    return QString::fromStdString(path.Extension()).compare(QLatin1String("png"), Qt::CaseInsensitive) == 0;
}

/// Light compression: a preview is looked at once, and waiting for smaller files is felt.
std::string ToPng(QImage const& image)
{
    constexpr int qualityOfFastCompression = 80;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG", qualityOfFastCompression))
        return {};
    return bytes.toStdString();
}

} // namespace

std::vector<OptionGroup> PreviewCommand::Options() const
{
    std::vector<OptionGroup> groups{
        {"Picture",
         {{"--at", OptionValue::Required, "TIME", "When: seconds (12.5), 1:02.5 or 1:02:03.5 from the start."},
          {"-o", OptionValue::Required, "IMAGE.png", "The picture to write."},
          {"--overwrite", OptionValue::None, {}, "Replace it if it exists."}}}};
    for (OptionGroup& group : SubtitleOptionGroups(SubtitlePurpose::Preview))
        groups.push_back(std::move(group));
    return groups;
}

ExitCode PreviewCommand::Run(Arguments const& arguments, Console& console)
{
    GivenOption const* at = arguments.Find("--at");
    GivenOption const* target = arguments.Find("-o");
    if (arguments.inputs.size() != 1)
        throw UsageError("\"korvex preview\" takes exactly one input.");
    if (at == nullptr)
        throw UsageError("Say when with --at TIME.");
    if (target == nullptr)
        throw UsageError("Say where to write with -o IMAGE.png.");
    ioPath const input = arguments.inputs.front();
    ioPath const output = target->Value();
    std::chrono::microseconds const time = ReadTime(*at);
    Hosts::SubtitleChoice const choice = ReadSubtitleOptions(arguments, SubtitlePurpose::Preview);
    if (!IsPngName(output))
        throw UsageError("The picture is written as PNG: let the name after -o end in .png.");
    bool const overwrite = arguments.Find("--overwrite") != nullptr;

    Services services;
    Hosts::MediaItemSession session(services);
    session.Open(input, {}, choice);
    auto const& streams = session.GetMediaInfo().streams;
    if (std::none_of(streams.begin(), streams.end(),
                     [](Proc::StreamInfo const& stream) { return stream.kind == Proc::StreamKind::Video; }))
        throw std::runtime_error("The file \"" + input.utf8string() + "\" has no picture to show; choose a video.");
    if (auto const refused = Core::CheckOutput(output, {input}, overwrite))
        throw Hosts::FileError(*refused);
    // Streams that can be switched are not in the picture, so nothing has to be made ready for them.
    if (choice.output == Hosts::SubtitleOutput::Burn)
        session.Apply(choice);
    for (std::string const& note : session.TakeNotes())
        console.err << "korvex: " << note << '\n';

    auto preview = Proc::MakePreview(input);
    if (!preview)
        throw Hosts::FileError(preview.GetError());
    auto const mixer = choice.output == Hosts::SubtitleOutput::Burn ? session.GetMixerSettings() : nullptr;
    if (auto const failed = (*preview)->SetSubtitles(mixer.get()))
        throw Hosts::FileError(*failed);
    auto const picture = (*preview)->Render(time);
    if (!picture)
        throw Hosts::FileError(picture.GetError());
    if (auto const failed = Core::WriteFile(output, ToPng(ToImage(*picture)), overwrite))
        throw Hosts::FileError(*failed);
    console.out << "Wrote " << output.utf8string() << " (the picture at " << FormatClock(picture->time) << ").\n";
    return ExitCode::Done;
}

} // namespace Korvex::Cli
