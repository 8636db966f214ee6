user_pref("browser.startup.homepage", "http://news.example.com/");
