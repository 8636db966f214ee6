// The one place that includes the headers of Windows. Every call is named with its A or W; the macros that
// stand for either are taken away where they clash with names of ours.
#pragma once

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
// The order matters: windows.h first.
// clang-format off
#include <windows.h>
#include <ole2.h>
#include <shellapi.h>
#include <shlobj.h>
#include <mstask.h>
#include <winternl.h>
// clang-format on

#undef CreateDirectory
#undef CreateFile
#undef CreateWindow
#undef DeleteFile
#undef DrawText
#undef FindText
#undef GetMessage
#undef GetObject
#undef LoadIcon
#undef LoadImage
#undef MessageBox
#undef MoveFile
#undef RemoveDirectory
#undef ReplaceText
#undef SendMessage
#undef SetWindowText
#undef far
#undef interface
#undef near
#undef small
