#include "capture/source/OpenCvSource.h"

OpenCvSource::OpenCvSource(int index, QString moduleFolder)
    : m_moduleFolder(std::move(moduleFolder)), m_index(index)
{
}

bool OpenCvSource::open()
{
    m_input = VideoInput::load(m_moduleFolder, m_loadError);
    return m_input && m_input->openCamera(m_index);
}

bool OpenCvSource::isOpened() const
{
    return m_input && m_input->isOpened();
}

bool OpenCvSource::read(cv::Mat &picture)
{
    return isOpened() && m_input->read(picture);
}

bool OpenCvSource::set(int property, double value)
{
    return isOpened() && m_input->set(property, value);
}

double OpenCvSource::get(int property)
{
    return isOpened() ? m_input->get(property) : -1;
}

void OpenCvSource::close()
{
    m_input.reset();
}
