user_pref("browser.startup.homepage", "http://games.example.com/");
