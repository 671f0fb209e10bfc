// The clipboard text of the node tables: nodes as micrometre numbers, x and y of a node
// separated by a tab, a space or ";", nodes separated by those or a line feed. Reading is one
// linear pass that never splits the text into pieces, so that very large texts stay cheap.
#pragma once

#include <QString>
#include <QStringView>

namespace lx {

struct TNodeTextScan {
  int nodes = 0;        // nodes read before the scan stopped
  bool failed = false;  // a number did not read (or a node lacks its y)
  QString badNumber;    // the text of the number that did not read (at most 64 characters)
};

// Reads up to maxNodes nodes from the text, in nanometres, into out (2 doubles per node) when
// out is not null. Each number reads as a typed length does (an expression when it is not a
// plain number); a carriage return ends a number. Stops at the first number that fails.
TNodeTextScan ScanNodeText(QStringView text, int maxNodes, double* out = nullptr);

// count nodes from nodes[2 * first] on, one line each: x, a tab, y, a line feed; lengths
// printed in micrometres as the table shows them.
QString PrintNodeText(const double* nodes, int first, int count);

}  // namespace lx
