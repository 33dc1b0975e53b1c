// What a user, the window system and an application do to the controls of a window, as operations that bytes choose.
#pragma once

#include "fuzz/FuzzBytes.h"

#include <QPointer>
#include <QVector>
#include <QWidget>

struct ControlKind;

/** A window with the controls of one input. Whatever is destroyed on the way is gone, and no error. */
class Stage
{
public:
    explicit Stage(FuzzBytes &bytes);
    ~Stage();

    /** Does operations until the bytes or its patience end. */
    void play();

    struct Member
    {
        const ControlKind *kind;
        QPointer<QWidget> widget;
    };

    FuzzBytes &bytes;
    QPointer<QWidget> window;
    QVector<Member> members;
    int current = 0;

    /** The control that operations are done to; null once it is destroyed. */
    QWidget *control() const { return members.isEmpty() ? nullptr : members.at(current).widget; }

    void addMember();
};
