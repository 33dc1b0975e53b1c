// Tags of languages, as the library understands them.
#pragma once

#include <QString>
#include <QStringList>

namespace lookcheck {

class Findings;

/** The tag that a setting stands for: ja for ja_JP.UTF-8; a tag as it is. */
QString tagOf(const QString &setting);

/** Whether the tag names a language of the world; an application may have others. */
bool isKnownLanguage(const QString &tag);

/** The languages that a graphics directory has folders for. Folders that look like it and are not are told. */
QStringList languagesOf(const QString &directory, Findings *findings);

} // namespace lookcheck
