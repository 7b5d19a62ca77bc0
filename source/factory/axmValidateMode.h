#pragma once

/// Whether a load validates.
enum axmValidateMode : int
{
  /// Against the schemas named in the options; a document for which none is named still loads.
  axmValidateWithSchemas = 0,

  /// Not at all.
  axmValidateNone = 1
};
