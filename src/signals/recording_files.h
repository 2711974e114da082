#pragma once

#include <QString>
#include <memory>

#include "wire/trace.h"

class QWidget;

namespace monitra::signals {

/// A recording that the user has opened.
struct Recording {
  std::unique_ptr<wire::Trace> trace;  ///< null: none was chosen, or it can't be read
  QString name;                        ///< of its file
  QString fault;                       ///< what is wrong with its end; empty if it is whole
};

/// Asks for a file and, where it doesn't tell, for the wires of the serial line. What can't be read
/// is told in a box.
Recording openRecording(QWidget* parent);

/// Reads a file whose wires are known or tell themselves; else the user is asked.
Recording readRecording(QWidget* parent, const QString& path);

/// Asks for a file and writes what is kept of a recording there, all of it or nothing. Gives the
/// file's name; empty if none was written, which is told in a box where it wasn't the user's wish.
QString saveRecording(QWidget* parent, const wire::Trace& trace);

}  // namespace monitra::signals
