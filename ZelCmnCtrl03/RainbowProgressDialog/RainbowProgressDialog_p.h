#pragma once

class QLabel;

/** The rows of a CRainbowProgressDialog, which owns them. */
class CRainbowProgressDialogPrivate
{
public:
    static constexpr int rows = 3;

    void init() { m_lblMessage0 = nullptr; }

    /** Null for a row that does not exist. */
    QLabel *label(int row) const
    {
        QLabel *const labels[rows] = {m_lblMessage0, m_lblMessage1, m_lblMessage2};
        return row >= 0 && row < rows ? labels[row] : nullptr;
    }

    QLabel *m_lblMessage0 = nullptr;
    QLabel *m_lblMessage1 = nullptr;
    QLabel *m_lblMessage2 = nullptr;
};
