#pragma once

#include "PageLayout.h"

#include <QObject>

#include <array>

class QLabel;

// The small warnings beside the number boxes of the Input Data page whose text is accepted but
// read only in part ("1,500" is read as 1): "read as 1". The text stays as typed and the
// calculation reads it as it always has; the note only says what it will read.
class ReadingNotes : public QObject
{
    Q_OBJECT

public:
    // Makes a hidden note for every number box of `page`, as a child of the page's panel.
    explicit ReadingNotes(const InputPageControls &page, QObject *parent = nullptr);

    // Puts each note beside its box (beside the help button of a box that has one) and shows
    // the notes whose box is shown and whose text is read in part. Runs after each layout.
    void place();

    // The note of input box `index`; nullptr for a text box.
    QLabel *note(int index) const { return m_notes[static_cast<size_t>(index)]; }

private:
    void update(int index);
    QWidget *besideWhat(int index) const;

    InputPageControls m_page;
    std::array<QLabel *, kInputCount + 1> m_notes {}; // [0] unused: boxes 1 to 23
};
