/// All that makes the object model shorter to use, in one header: casts, values, texts, equality,
/// visitors, children, paths, and standard exceptions. Each stands in a header of its own, too; who
/// includes none pays for none. The functions are in the namespace `korva`.
#pragma once

#include <korva/KORVA_Cast.h>
#include <korva/KORVA_Children.h>
#include <korva/KORVA_Equal.h>
#include <korva/KORVA_Format.h>
#include <korva/KORVA_MessageAccess.h>
#include <korva/KORVA_Path.h>
#include <korva/KORVA_StdException.h>
#include <korva/KORVA_TerminateHandler.h>
#include <korva/KORVA_Value.h>
#include <korva/KORVA_Visit.h>
