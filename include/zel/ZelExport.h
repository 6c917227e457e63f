#pragma once

/// Marks what the shared library exports: the statics of IZelMgr and IID_IUnknown, nothing else.
#if defined(_WIN32)
#if defined(ZEL_BUILDING_LIBRARY)
#define ZEL_API __declspec(dllexport)
#else
#define ZEL_API __declspec(dllimport)
#endif
#else
#define ZEL_API __attribute__((visibility("default")))
#endif
