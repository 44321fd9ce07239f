// The room between the parts of the guide.
#pragma once

class QColor;
class QTextDocument;

namespace kav {

/// Sets paragraphs, headings and the cells of tables apart, for letters `letters` pixels high, and
/// draws the tables in lines of the colour `line`. A heading row in which nothing stands goes: the
/// notation of the documents has no tables without one.
void SpaceOut(QTextDocument& text, int letters, const QColor& line);

}  // namespace kav
