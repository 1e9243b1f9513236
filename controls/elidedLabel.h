#pragma once

class QLabel;

namespace mledit {

// From now on a label shows as much of its text as it has room for, with an ellipsis at the end of
// the rest and the whole of it as a tooltip. However long the text, it asks for no width.
void elideLabel(QLabel& label);

} // namespace mledit
