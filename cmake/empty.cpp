// Placeholder translation unit for subsystems that have no sources yet.
