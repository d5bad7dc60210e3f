/// Grades how bad a failure is.
#pragma once

/// Ascending. `ZELThrowable::getSeverityName` gives the text of a value. 0 is no severity: where a
/// constructor takes one, a 0 stands for the usual severity of that class.
enum ZELSeverity : int { eZELDebug = 1, eZELInfo = 2, eZELWarn = 3, eZELError = 4, eZELFatal = 5 };
