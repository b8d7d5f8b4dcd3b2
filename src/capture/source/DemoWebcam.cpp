#include "capture/source/DemoWebcam.h"

#include <algorithm>
#include <cmath>
#include <opencv2/imgproc.hpp>
#include <opencv2/videoio.hpp>

namespace {

constexpr QSize smallSize(1280, 720);
constexpr QSize largeSize(1920, 1080);

// Where each property leaves the picture as it was drawn.
constexpr double plainBrightness = 128;
constexpr double plainContrast = 32;
constexpr double plainSaturation = 32;
constexpr double plainGain = 26;
constexpr double plainExposure = 128;
constexpr double plainSharpness = 72;
constexpr double sharpFocus = 20;

quint64 packed(const QSize &size)
{
    return size.isEmpty() ? 0 : quint64(size.width()) << 32 | quint64(size.height());
}

} // namespace

void DemoWebcamControls::setPresent(bool present)
{
    if (m_present.exchange(present) != present)
        emit presentChanged();
}

void DemoWebcamControls::setForcedSize(const QSize &size)
{
    m_forcedSize = packed(size);
}

QSize DemoWebcamControls::forcedSize() const
{
    const quint64 size = m_forcedSize;
    return {int(size >> 32), int(size & 0xffffffff)};
}

DemoWebcam::DemoWebcam(std::shared_ptr<CaptureClock> clock, std::shared_ptr<DemoWebcamControls> controls)
    : m_pacer(std::move(clock)),
      m_controls(std::move(controls)), m_properties{{{cv::CAP_PROP_BRIGHTNESS, plainBrightness, 255},
                                                     {cv::CAP_PROP_CONTRAST, plainContrast, 255},
                                                     {cv::CAP_PROP_SATURATION, plainSaturation, 255},
                                                     {cv::CAP_PROP_HUE, 0, 255},
                                                     {cv::CAP_PROP_GAIN, plainGain, 127},
                                                     {cv::CAP_PROP_EXPOSURE, plainExposure, 255},
                                                     {cv::CAP_PROP_AUTO_EXPOSURE, 1, 1},
                                                     {cv::CAP_PROP_SHARPNESS, plainSharpness, 255},
                                                     {cv::CAP_PROP_ZOOM, 1, 100},
                                                     {cv::CAP_PROP_FOCUS, 0, 40},
                                                     {cv::CAP_PROP_AUTOFOCUS, 1, 1}}},
      m_size(smallSize)
{
}

bool DemoWebcam::open()
{
    m_open = m_controls->isPresent();
    m_pacer.start(framesPerSecond);
    return m_open;
}

bool DemoWebcam::read(cv::Mat &picture)
{
    picture.release();
    if (!m_open)
        return false;
    m_pacer.waitForNext();
    if (!m_controls->isPresent() || !m_controls->isDelivering())
        return false;
    if (m_rendered.empty())
        m_rendered = render();
    const QSize forced = m_controls->forcedSize();
    if (forced.isEmpty())
        picture = m_rendered;
    else
        cv::resize(m_rendered, picture, cv::Size(forced.width(), forced.height()), 0, 0, cv::INTER_AREA);
    if (m_controls->channels() == 1)
        cv::cvtColor(picture, picture, cv::COLOR_BGR2GRAY);
    else if (m_controls->channels() == 4)
        cv::cvtColor(picture, picture, cv::COLOR_BGR2BGRA);
    m_controls->countDelivered();
    return true;
}

DemoWebcam::Property *DemoWebcam::find(int number)
{
    const auto found = std::find_if(m_properties.begin(), m_properties.end(),
                                    [&](const Property &property) { return property.number == number; });
    return found == m_properties.end() ? nullptr : &*found;
}

double DemoWebcam::value(int number)
{
    return find(number)->value;
}

// Width and height come one after the other, and a size is known only with both.
void DemoWebcam::chooseSize()
{
    if (m_askedWidth < 1 || m_askedHeight < 1)
        return;
    const bool large = m_askedWidth > smallSize.width() || m_askedHeight > smallSize.height();
    m_size = large ? largeSize : smallSize;
    m_rendered.release();
}

bool DemoWebcam::set(int property, double value)
{
    if (property == cv::CAP_PROP_FRAME_WIDTH) {
        m_askedWidth = value;
        return value >= 1;
    }
    if (property == cv::CAP_PROP_FRAME_HEIGHT) {
        m_askedHeight = value;
        chooseSize();
        return value >= 1;
    }
    Property *known = find(property);
    if (!known)
        return false;
    known->value = std::clamp(value, 0.0, known->highest);
    m_rendered.release();
    return true;
}

double DemoWebcam::get(int property)
{
    if (property == cv::CAP_PROP_FRAME_WIDTH)
        return m_size.width();
    if (property == cv::CAP_PROP_FRAME_HEIGHT)
        return m_size.height();
    const Property *known = find(property);
    return known ? known->value : -1;
}

void DemoWebcam::close()
{
    m_open = false;
    m_rendered.release();
}

void DemoWebcam::frameTaken()
{
    ++m_pose;
    m_controls->countTaken();
    m_rendered.release();
}

cv::Mat DemoWebcam::render()
{
    const double zoom = 1 + (std::max(1.0, value(cv::CAP_PROP_ZOOM)) - 1) * 0.03;
    QImage drawn = m_stage.picture(m_size, m_pose, zoom);
    const cv::Mat view(drawn.height(), drawn.width(), CV_8UC4, drawn.bits(), size_t(drawn.bytesPerLine()));
    cv::Mat picture;
    cv::cvtColor(view, picture, cv::COLOR_BGRA2BGR);
    adjustTones(picture);
    adjustColours(picture);
    adjustSharpness(picture);
    return picture;
}

void DemoWebcam::adjustTones(cv::Mat &picture)
{
    double light = 1 + (value(cv::CAP_PROP_GAIN) - plainGain) / 80;
    if (value(cv::CAP_PROP_AUTO_EXPOSURE) == 0)
        light *= std::pow(2.0, (value(cv::CAP_PROP_EXPOSURE) - plainExposure) / 48);
    const double contrast = 0.4 + 0.6 * value(cv::CAP_PROP_CONTRAST) / plainContrast;
    const double offset = value(cv::CAP_PROP_BRIGHTNESS) - plainBrightness;
    if (light == 1 && contrast == 1 && offset == 0)
        return;
    cv::Mat table(1, 256, CV_8U);
    for (int i = 0; i < 256; ++i)
        table.at<uchar>(i) = cv::saturate_cast<uchar>((i * light - 128) * contrast + 128 + offset);
    cv::LUT(picture, table, picture);
}

void DemoWebcam::adjustColours(cv::Mat &picture)
{
    const double saturation = value(cv::CAP_PROP_SATURATION) / plainSaturation;
    const double hue = value(cv::CAP_PROP_HUE) * 180 / 256;
    if (saturation == 1 && hue == 0)
        return;
    cv::Mat hsv;
    cv::cvtColor(picture, hsv, cv::COLOR_BGR2HSV);
    cv::Mat table(1, 256, CV_8UC3);
    for (int i = 0; i < 256; ++i)
        table.at<cv::Vec3b>(i) =
            cv::Vec3b(uchar(std::fmod(i + hue, 180)), cv::saturate_cast<uchar>(i * saturation), uchar(i));
    cv::LUT(hsv, table, hsv);
    cv::cvtColor(hsv, picture, cv::COLOR_HSV2BGR);
}

void DemoWebcam::adjustSharpness(cv::Mat &picture)
{
    const bool focused = value(cv::CAP_PROP_AUTOFOCUS) != 0;
    const double away = focused ? 0 : std::abs(value(cv::CAP_PROP_FOCUS) - sharpFocus);
    if (away > 0)
        cv::GaussianBlur(picture, picture, cv::Size(), away / 4 * picture.cols / smallSize.width());
    const double sharpness = (value(cv::CAP_PROP_SHARPNESS) - plainSharpness) / 100;
    if (sharpness == 0)
        return;
    cv::Mat soft;
    cv::GaussianBlur(picture, soft, cv::Size(), 1.5);
    cv::addWeighted(picture, 1 + sharpness, soft, -sharpness, 0, picture);
}
