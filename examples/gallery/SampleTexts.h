#pragma once

#include <QString>

#include <vector>

namespace gallery {

/** What the specimens say, in one language. */
struct SampleTexts
{
    QString tag;
    QString languageName;
    QString print;
    QString printAll; // the long text of every family
    QString photos;
    QString open;
    QString remove;
    QString share;
    QString email;
    QString folder;
    QString showDetails;
};

const std::vector<SampleTexts> &allSampleTexts();

/** The texts of a language tag such as "zh-chs"; English for an unknown or empty one. */
const SampleTexts &sampleTexts(const QString &tag);

} // namespace gallery
