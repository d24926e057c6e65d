#pragma once

/// Joins what the program asks of pixels and files with what answers. Called once by every entry point
/// before the first front end is made; front ends made later find their back ends by themselves.
void joinBackends();
