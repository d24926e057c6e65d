import QtQml

// The values are indices of the preferences dialog's stack of pages, whose order must match.
QtObject {
    enum PreferencesPage {
        General,
        Export,
        Privacy,
        LightroomClassic,
        DeveloperMode,
        Autopilot,
        Upscale,
        RemoveNoise,
        RemoveNoiseRaw,
        Sharpen,
        HighQualityImages,
        FaceRecovery,
        TextRecovery,
        AdjustLighting,
        BalanceColor,
        Shortcuts,
        File,
        View,
        Select,
        Masking,
        Cropping
    }
}
