// Between a filter's strengths, which are fractions, and the sliders, which show percent.

const clamp = (value, low, high) => Math.min(Math.max(value, low), high);

export const shown = fraction => Math.round(fraction * 100);

// Whether a slider that starts at `from` says something else than the stored fraction. A slider shows whole percents:
// a difference of half of one is the rounding, not the user. Below zero the test always passes.
export function differs(fraction, percent, from) {
    return Math.abs(clamp(fraction, from === 0 ? 0 : 0.01, 1) - percent / 100) > 0.005;
}

// Where Autopilot's mark goes; `absent` without a value.
export function suggestion(fraction, low, high, absent) {
    return typeof fraction === "number" ? clamp(shown(fraction), low, high) : absent;
}
