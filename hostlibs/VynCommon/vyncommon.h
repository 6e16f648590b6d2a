#pragma once

#include "vyncommonglobal.h"

/*!
    Life-cycle hooks of the common library.

    A module built on VynCommon calls initializeTypes() once before QML or
    queued connections use the library's value types, onOpeningModule() when
    it starts using the library and onLeavingModule() when it stops. Opening
    and leaving may repeat; they are counted.
*/
namespace VynCommon {

//! Registers the library's value and enum types with the meta-type system. Idempotent.
VYNCOMMON_EXPORT void initializeTypes();

//! Makes sure the library's localisation tables are registered and counts one more user.
VYNCOMMON_EXPORT void onOpeningModule();

//! Counts one user less; never goes below zero.
VYNCOMMON_EXPORT void onLeavingModule();

//! How many modules currently have the library open.
VYNCOMMON_EXPORT int openModuleCount();

} // namespace VynCommon
