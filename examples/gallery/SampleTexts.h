#pragma once

#include <QString>

#include <vector>

namespace gallery {

/** Of an order of prints: captions of fields, and what may be in them. */
struct OrderTexts
{
    QString customer;
    QString name;
    QString somebody; // the name of a customer
    QString copies;
    QString size;
    QString paper;
    QString glossy;
    QString matte;
    QString border;
    QString date;
    QString delivery;
    QString byPost;
    QString inShop;
    QString note;
    QString options;
    QString cancel;
    QString tip; // one long sentence
};

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
    OrderTexts order;
};

const std::vector<SampleTexts> &allSampleTexts();

/** The texts of a language tag such as "zh-chs"; one of another country is better than English. */
const SampleTexts &sampleTexts(const QString &tag);

} // namespace gallery
