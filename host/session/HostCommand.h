#pragma once

#include <string>
#include <vector>

namespace orvex {

class Session;

// A command of the host's own.
struct HostCommand {
    const wchar_t* name;
    void (*run)(Session&);
};

// Null when the host has none of that name; names ignore case.
const HostCommand* findHostCommand(const std::wstring& name);

// What can be typed in addition to the commands of modules.
std::vector<std::wstring> hostCommandNames();

// E: the extents of the drawing. C: a centre point and the height of the view in drawing units.
void zoomCommand(Session& session);
// A variable's name, then its value; an empty answer keeps the value.
void setVariableCommand(Session& session);
// Words of snap modes, or OFF: what a window's points are drawn to.
void snapCommand(Session& session);
// A new multiline in the current style.
void mlineCommand(Session& session);
// A selection, all when it is empty; then Look or Repair: tells multilines that contradict their
// style or themselves.
void auditCommand(Session& session);
// A selection: lays the elements of multilines where their style wants them.
void layRightCommand(Session& session);
// A pick near an open end, then a point: moves the end along its segment.
void moveEndCommand(Session& session);
// A multiline, a segment, an element, then distances: the element's breaks.
void elementBreaksCommand(Session& session);
// A selection, all when it is empty, and options: joins multilines where they meet.
void joinCommand(Session& session);

// A selection of any entities: takes them out of model space.
void eraseCommand(Session& session);
// A selection, a base point, a second point, COPY until an empty line: shifts, or shifted copies.
void moveCommand(Session& session);
void copyCommand(Session& session);
// A selection, a base point, degrees counter-clockwise.
void rotateCommand(Session& session);
// A selection, two points of a line: replaced by their mirror images.
void mirrorCommand(Session& session);
// Two corners, a base point, a second point: shifts the vertices within, where the box is touched.
void stretchCommand(Session& session);
// A selection: turns the direction of chains.
void reverseCommand(Session& session);
// A selection, then what to change of it, an empty line applies.
void changeCommand(Session& session);
// Two names: all multilines of the one style take the other.
void restyleCommand(Session& session);
// A style's name: copies it, opens the dialog of styles, then gives all that use it the copy.
void styleInUseCommand(Session& session);
// A pick, one point or two: parts a multiline, without what lies between.
void breakCommand(Session& session);
// A selection: multilines become lines, arcs and filled areas that look the same.
void explodeCommand(Session& session);
// Two picks: makes one multiline of two whose ends meet.
void connectCommand(Session& session);
// Multilines with a vertex each, then Move, Add with a place, or Remove.
void vertexCommand(Session& session);
// A selection: tells what its multilines are.
void listCommand(Session& session);
// A pick of the bar, one of its lines, picks near ends until an empty line: moves ends to it.
void extendCommand(Session& session);
void trimCommand(Session& session);

// Tells the current source that its last answer can't be taken.
void rejectAnswer(const std::wstring& reason);

} // namespace orvex
