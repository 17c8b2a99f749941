#pragma once

#include <QVector>

/// Leads from a text back to the one that it was made from, in steps that each cut and replace stretches.
class TextMap
{
public:
    /// One step: where the stretches of its text stood in the text before it.
    class Step
    {
    public:
        /// From that position on, the text is that of the one before from the other position on. In ascending order;
        /// what was appended for a position that is no longer kept is forgotten.
        void append(int position, int before);
        int before(int position) const;

    private:
        struct Stretch
        {
            int position;
            int before;
        };
        QVector<Stretch> mStretches;
    };

    void append(const Step &step) { mSteps.append(step); }
    /// Where the character stood in the first text. One of a replacement stood in what it replaces.
    int original(int position) const;

private:
    QVector<Step> mSteps;
};
