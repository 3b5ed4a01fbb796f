# The Homebrew cask. Version and checksum are those that script/package-mac prints.
cask "vantrel" do
  version "0.1.0"
  sha256 :no_check # until there is a release to check

  url "https://vantrel.example/releases/Vantrel-#{version}-macos-arm64.zip"
  name "Vantrel"
  desc "Controls the monitors on a desk over DDC/CI"
  homepage "https://vantrel.example/"

  depends_on macos: ">= :ventura"
  depends_on arch: :arm64

  app "Vantrel.app"

  uninstall quit: "org.vantrel.Vantrel"

  zap trash: "~/Library/Preferences/org.vantrel.Vantrel.plist"
end
