#include "screens/help/Lessons.h"

namespace lensbench::lessons {
namespace {

using light::Diafragma;

// Wide enough for every ray that meets the lens.
constexpr Diafragma open{-150.0, 156.0, -156.0};
// As wide, and out of the way of a source that is put before the lens.
constexpr Diafragma openAtTheLens{-30.0, 156.0, -156.0};

constexpr View aroundTheRay{-220.0, 220.0, -110.0, 110.0};
constexpr View aroundTheGlass{-60.0, 255.0, -170.0, 170.0};
constexpr View upToTheImage{.left = -220.0, .right = 380.0};
constexpr View wholeIbnSahl{-120.0, 150.0, -120.0, 120.0};

// Both faces of radius 100, 40 thick: f = 107.14 at n = 1.50.
constexpr OnWorkbench strong(Diafragma diafragma) {
  return {.R1 = 100, .R2 = 100, .xc1 = -80, .xc2 = 80, .desmi1 = 80, .diafragma = diafragma};
}

// Both faces of radius 200, 40 thick: f = 206.90 at n = 1.50.
constexpr OnWorkbench weak(Diafragma diafragma) {
  return {.R1 = 200, .R2 = 200, .xc1 = -180, .xc2 = 180, .desmi1 = 80, .diafragma = diafragma};
}

constexpr OnWorkbench with(OnWorkbench bench, std::variant<Fan, Bundle, Marks> light) {
  bench.light = light;
  return bench;
}

constexpr OnWorkbench imageOf(Point source) {
  OnWorkbench bench = with(strong(openAtTheLens), Marks{});
  bench.desmi1 = 40;
  bench.source = source;
  return bench;
}

constexpr OnWorkbench thickLens() {
  return {.desmi1 = 80, .diafragma = open, .source = {-200.0, 40.0}, .light = Marks{}};
}

constexpr OnWorkbench bubble() {
  OnWorkbench bench = with(strong({-100.0, 12.0, -12.0}), Bundle{0.0});
  bench.n = 75;
  return bench;
}

constexpr OnWorkbench fronts() {
  OnWorkbench bench = with(weak({-100.0, 60.0, -60.0}), Bundle{0.0});
  bench.onlyWaves = true;
  return bench;
}

// Twice as large as the screen's own lens, which changes no angle.
constexpr OnSingleRay insideTheGlass() {
  return {.R1 = 180,
          .R2 = 200,
          .xc2 = 200,
          .diafragma = open,
          .source = {150.0, 0.0},
          .aim = {194.0, 90.0}};
}

constexpr std::array<Lesson, 12> lessons{{
    {
        .title = {"Διάθλαση σε μια όψη", "Refraction at a face"},
        .see = {"Μια ακτίνα τρέχει παράλληλα στον άξονα, συναντά την αριστερή όψη του φακού και "
                "στρέφεται προς την κάθετη. Στη δεξιά όψη βγαίνει στον αέρα και απομακρύνεται από "
                "την κάθετη.",
                "A ray runs parallel to the axis, meets the left face of the lens and turns "
                "towards the normal. At the right face it comes out into the air and turns away "
                "from the normal."},
        .act =
            {"Άφησε τον δείκτη του ποντικιού ακίνητο εκεί όπου η ακτίνα μπαίνει στο γυαλί. Όταν "
             "ξεκινά το πρόγραμμα, το διάφραγμα είναι κλειστό και σταματά κάθε ακτίνα· το «Στήσε "
             "το» το άνοιξε για σένα. Αλλιώς το ανοίγεις στην οθόνη των σφαιρικών φακών: σύρε "
             "το άνω διάφραγμα προς τα πάνω και το κάτω προς τα κάτω· είναι οι δύο καφέ "
             "γραμμές.",
             "Rest the mouse pointer where the ray enters the glass. When the program starts, "
             "the diaphragm is closed and stops every ray; “Set it up” has opened it for you. "
             "Otherwise you open it on the screen of the spherical lenses: drag the upper blade "
             "up and the lower one down; they are the two brown lines."},
        .look = {"Οι γωνίες είναι 23.58° στον αέρα και 15.47° στο γυαλί, που έχει δείκτη διάθλασης "
                 "n = 1.50. Το γινόμενο n·ημ a είναι το ίδιο πριν και μετά: 0.40. Αυτός είναι ο "
                 "νόμος της διάθλασης.",
                 "The angles are 23.58° in the air and 15.47° in the glass, whose index of "
                 "refraction is n = 1.50. The product n·sin a is the same before and after: 0.40. "
                 "That is the law of refraction."},
        .question = {"Πόση γίνεται η γωνία στο γυαλί, αν ο δείκτης διάθλασης γίνει 2.00;",
                     "What does the angle in the glass become when the index is made 2.00?"},
        .answer = {"11.54°, γιατί το ημίτονό της είναι 0.40 / 2.00 = 0.20.",
                   "11.54°, because its sine is 0.40 / 2.00 = 0.20."},
        .setup = OnSingleRay{.diafragma = open, .source = {-200.0, 40.0}, .aim = {0.0, 40.0}},
        .view = aroundTheRay,
    },
    {
        .title = {"Εστιακή απόσταση", "Focal length"},
        .see = {"Μια λεπτή δέσμη παράλληλη στον άξονα περνά από τον φακό και συγκλίνει σε ένα "
                "σημείο του άξονα, την εστία F2.",
                "A narrow bundle parallel to the axis goes through the lens and gathers at one "
                "point of the axis, the focus F2."},
        .act = {"Κράτησε πατημένο το Shift και πάτησε μέσα στον φακό: μένουν μόνο τα "
                "χαρακτηριστικά σημεία του. Άφησε τον δείκτη του ποντικιού ακίνητο πάνω στο F2 και "
                "ύστερα πάνω στο επίπεδο H2. Έπειτα στείλε πάλι τη δέσμη με «// BUNDLE  DESMH» και "
                "γωνία 0.",
                "Hold Shift and press inside the lens: its cardinal points alone remain. Rest the "
                "mouse pointer on F2, then on the plane H2. Then send the bundle again with “// "
                "BUNDLE  DESMH” and the angle 0."},
        .look = {"Το F2 είναι στο x = 213.10, το κύριο επίπεδο H2 στο x = 6.21 και η εστιακή "
                 "απόσταση είναι f = 206.90. Μετριέται από το H2, όχι από την όψη του φακού.",
                 "F2 is at x = 213.10, the principal plane H2 at x = 6.21, and the focal length is "
                 "f = 206.90. It is measured from H2, not from the face of the lens."},
        .question = {"Τι παθαίνει η f, αν ο δείκτης διάθλασης n γίνει 2.00 αντί για 1.50;",
                     "What happens to f when the index n is 2.00 instead of 1.50?"},
        .answer = {"Γίνεται 105.26, περίπου η μισή: ο φακός στρέφει τις ακτίνες σχεδόν ανάλογα με "
                   "το n − 1, που διπλασιάστηκε· τη διαφορά την κάνει το πάχος του.",
                   "It becomes 105.26, about half: a lens turns rays nearly in proportion to "
                   "n − 1, which has doubled; the thickness makes the difference."},
        .setup = with(weak({-100.0, 12.0, -12.0}), Bundle{0.0}),
    },
    {
        .title = {"Το είδωλο και η μεγέθυνσή του", "The image and its magnification"},
        .see = {"Τρεις γαλάζιες ακτίνες ξεκινούν από την πηγή: μία παράλληλη στον άξονα, μία από "
                "την εστία F1 και μία προς το N1, που συνεχίζει παράλληλη από το N2. Εκεί όπου "
                "συναντιούνται σχηματίζεται το είδωλο. Είναι ακτίνες κατασκευής: στρέφονται στα "
                "κύρια επίπεδα H1 και H2, όχι στις όψεις του φακού.",
                "Three light-blue rays start from the source: one parallel to the axis, one "
                "through the focus F1 and one towards N1, which goes on in parallel from N2. Where "
                "they meet, the image is formed. They are rays of a construction: they bend at the "
                "principal planes H1 and H2, not at the faces of the lens."},
        .act = {"Άφησε τον δείκτη του ποντικιού ακίνητο πάνω στο γαλάζιο σημείο, το είδωλο. "
                "Κράτησε πατημένο το Shift και πάτησε μακριά από τον φακό, πρώτα πιο κοντά του από "
                "όσο είναι τώρα η πηγή και ύστερα πιο μακριά· κάθε φορά ρώτησε πάλι το είδωλο.",
                "Rest the mouse pointer on the light-blue point, the image. Hold Shift and press "
                "away from the lens, first nearer to it than the source is now, then farther; each "
                "time ask the image again."},
        .look = {"Η πηγή απέχει δύο εστιακές αποστάσεις από το H1, στο (-220, 20). Το είδωλο είναι "
                 "πραγματικό, στο (220, -20): ανεστραμμένο και ίσο, με μεγέθυνση -1.00.",
                 "The source is two focal lengths away from H1, at (-220, 20). The image is real, "
                 "at (220, -20): upside down and of equal size, with magnification -1.00."},
        .question = {"Πού πρέπει να σταθεί η πηγή για να δώσει ένα πραγματικό είδωλο διπλάσιο;",
                     "Where must the source stand to give a real image twice as large?"},
        .answer = {"Μιάμιση εστιακή απόσταση από το H1, στο x = -166.43. Το είδωλο πάει στο "
                   "x = 327.14.",
                   "One and a half focal lengths from H1, at x = -166.43. The image goes to "
                   "x = 327.14."},
        .setup = imageOf({-220.0, 20.0}),
    },
    {
        .title = {"Ένα φανταστικό είδωλο", "A virtual image"},
        .see = {"Η πηγή στέκεται πιο κοντά στον φακό από την εστία F1. Πίσω από τον φακό οι "
                "ακτίνες απομακρύνονται η μία από την άλλη και δεν συναντιούνται πουθενά.",
                "The source stands nearer to the lens than the focus F1. Behind the lens the rays "
                "move away from each other and meet nowhere."},
        .act = {"Άφησε τον δείκτη του ποντικιού ακίνητο πάνω στο γαλάζιο σημείο αριστερά. Έπειτα "
                "κράτησε πατημένο το Shift και πάτησε στη θέση της πηγής, για να δεις όλες τις "
                "ακτίνες της. Κοίτα από τα δεξιά: από πού φαίνονται να έρχονται;",
                "Rest the mouse pointer on the light-blue point at the left. Then hold Shift and "
                "press at the place of the source to see all of its rays. Look from the right: "
                "where do they seem to come from?"},
        .look =
            {"Προεκτεινόμενες προς τα πίσω συναντιούνται στο (-236.52, 32.61), αριστερά της "
             "πηγής. Το είδωλο είναι όρθιο, φανταστικό και 3.26 φορές μεγαλύτερο: έτσι δουλεύει "
             "ο μεγεθυντικός φακός.",
             "Drawn backwards they meet at (-236.52, 32.61), to the left of the source. The "
             "image is upright, virtual and 3.26 times as large: this is how a magnifying "
             "glass works."},
        .question = {"Μπορείς να πιάσεις αυτό το είδωλο πάνω σε χαρτί;",
                     "Can you catch this image on a sheet of paper?"},
        .answer = {"Όχι. Τίποτα από το φως που βγαίνει από τον φακό δεν περνά από εκεί· μόνο το "
                   "μάτι, που το δέχεται, βλέπει εκεί το είδωλο.",
                   "No. None of the light that comes through the lens passes there; only the eye "
                   "that receives it sees the image there."},
        .setup = imageOf({-80.0, 10.0}),
    },
    {
        .title = {"Τα χαρακτηριστικά σημεία ενός παχιού φακού",
                  "The cardinal points of a thick lens"},
        .see = {"Ο φακός έχει πάχος 120, όσο και η εστιακή του απόσταση. Τα δύο κύρια επίπεδα H1 "
                "και H2 δεν συμπίπτουν.",
                "The lens is 120 thick, as much as its focal length. The two principal planes H1 "
                "and H2 do not coincide."},
        .act = {"Άφησε τον δείκτη του ποντικιού ακίνητο πάνω στο F2 και ύστερα πάνω στο επίπεδο "
                "H2. Έπειτα στένεψε το διάφραγμα, ώσπου η οπή του, που γράφεται κάτω δεξιά, να "
                "γίνει περίπου 24, και στείλε δέσμη με «// BUNDLE  DESMH» και γωνία 0.",
                "Rest the mouse pointer on F2, then on the plane H2. Then narrow the diaphragm "
                "until its opening, which is written at the lower right, is about 24, and send a "
                "bundle with “// BUNDLE  DESMH” and the angle 0."},
        .look = {"Το F2 σημειώνεται στο x = 122.00 και το H2 στο x = 2.00, ενώ οι ακτίνες κοντά "
                 "στον άξονα συναντιούνται "
                 "στο x = 116.67: 5.33 πιο κοντά στον φακό. Κάθε σημείο τοποθετείται με την ακτίνα "
                 "καμπυλότητας της όψης που έχει δίπλα του· η ακριβής οπτική, που ακολουθούν οι "
                 "ακτίνες, θέλει εκείνη της απέναντι όψης.",
                 "F2 is marked at x = 122.00 and H2 at x = 2.00, but rays near the axis meet at x "
                 "= 116.67: 5.33 "
                 "nearer to the lens. Each mark is placed with the radius of the face beside it; "
                 "exact optics, which the rays follow, takes that of the opposite face."},
        .question = {"Για ποιους φακούς δεν υπάρχει διαφορά;",
                     "For which lenses is there no difference?"},
        .answer = {"Για εκείνους με ίσες ακτίνες καμπυλότητας, R1 = R2.",
                   "For those of equal radii, R1 = R2."},
        .setup = thickLens(),
        .view = upToTheImage,
    },
    {
        .title = {"Σφαιρική εκτροπή", "Spherical aberration"},
        .see = {"Μια πλατιά παράλληλη δέσμη δεν συγκλίνει σε ένα σημείο: οι ακτίνες της αγγίζουν "
                "μια καμπύλη, την καυστική, που καταλήγει σε αιχμή στο F2.",
                "A wide parallel bundle does not gather at one point: its rays touch a curve, the "
                "caustic, which ends in a cusp at F2."},
        .act = {"Άφησε τον δείκτη του ποντικιού ακίνητο πάνω στις ακτίνες δεξιά από τον φακό: η "
                "απάντηση λέει ποια είναι η καθεμιά. Από τις 81 η 33η έρχεται σε ύψος 40 και η 39η "
                "σε ύψος 10. Δες πού κόβουν τον άξονα και ρώτησε τα σημάδια που είναι εκεί: τον "
                "μικρό κύκλο και το F2.",
                "Rest the mouse pointer on the rays to the right of the lens: the answer tells "
                "which each of them is. Of the 81, ray 33 comes in at height 40 and ray 39 at "
                "height 10. See where they cross the axis, and ask the marks that are there: the "
                "small circle and F2."},
        .look = {"Ο κύκλος είναι στο x = 100.00 και το F2 στο x = 112.86. Η ακτίνα σε ύψος 40 "
                 "κόβει τον άξονα πριν από τον κύκλο, στο x = 87.14, η ακτίνα σε ύψος 10 λίγο πριν "
                 "από το F2, στο x = 111.57. Όσο πιο μακριά από τον άξονα έρχεται μια ακτίνα, τόσο "
                 "πιο κοντά στον φακό τον κόβει.",
                 "The circle is at x = 100.00 and F2 at x = 112.86. The ray at height 40 crosses "
                 "the axis before the circle, at x = 87.14, the ray at height 10 just before F2, "
                 "at x = 111.57. The farther from the axis a ray comes in, the nearer to the lens "
                 "it crosses it."},
        .question = {"Φταίει λάθος του προγράμματος;", "Is it an error of the program?"},
        .answer =
            {"Όχι. Οι σφαίρες κόβονται εύκολα, αλλά δεν είναι το σχήμα που μαζεύει μια δέσμη "
             "σε ένα σημείο. Το σχήμα αυτό το βρήκε ο Ιμπν Σαχλ.",
             "No. Spheres are easy to grind, but they are not the shape that gathers a bundle "
             "at one point. Ibn Sahl found that shape."},
        .setup = with(strong({-100.0, 42.0, -42.0}), Bundle{0.0}),
    },
    {
        .title = {"Στενεύοντας το διάφραγμα", "Stopping down"},
        .see = {"Ο ίδιος φακός και η ίδια δέσμη, με στενό διάφραγμα: περνούν μόνο οι ακτίνες κοντά "
                "στον άξονα.",
                "The same lens and the same bundle with a narrow diaphragm: only rays near the "
                "axis pass."},
        .act = {"Άνοιξε και στένεψε το διάφραγμα σύροντας τα δύο άκρα του και στείλε κάθε φορά τη "
                "δέσμη πάλι με «// BUNDLE  DESMH» και γωνία 0. Η οπή γράφεται κάτω δεξιά.",
                "Open and narrow the diaphragm by dragging its blades, and send the bundle again "
                "each time with “// BUNDLE  DESMH” and the angle 0. The opening is written at the "
                "lower right."},
        .look = {"Με οπή 24 οι ακτίνες κόβουν τον άξονα από το x = 111.57 ως το 112.54, δηλαδή "
                 "μέσα σε 0.97. Με οπή 84, όπως στο μάθημα 6, απλώνονται από το 87.14, δηλαδή σε "
                 "25.40.",
                 "With an opening of 24 the rays cross the axis from x = 111.57 to 112.54, within "
                 "0.97. With an opening of 84, as in lesson 6, they spread from 87.14 on, over "
                 "25.40."},
        .question = {"Τι χάνει μια φωτογραφική μηχανή που στενεύει το διάφραγμά της;",
                     "What does a camera lose that narrows its diaphragm?"},
        .answer = {"Φως: περνούν λιγότερες ακτίνες. Κερδίζει καθαρότερη εικόνα.",
                   "Light: fewer rays pass. It gains a sharper picture."},
        .setup = with(strong({-100.0, 12.0, -12.0}), Bundle{0.0}),
    },
    {
        .title = {"Ολική ανάκλαση", "Total reflection"},
        .see = {"Η πηγή είναι μέσα στο γυαλί. Η κόκκινη ακτίνα φτάνει στη δεξιά όψη τόσο πλάγια, "
                "ώστε δεν μπορεί να βγει: το φως της ανακλάται μέσα στο γυαλί. Το πρόγραμμα δεν "
                "σχεδιάζει τη συνέχεια· η μαύρη γραμμή δείχνει μόνο προς τα πού στόχευσε η ακτίνα.",
                "The source is inside the glass. The red ray reaches the right face so obliquely "
                "that it cannot leave: its light is reflected inside the glass. The program does "
                "not draw it further; the black line only shows where the ray was aimed."},
        .act = {"Άφησε τον δείκτη του ποντικιού ακίνητο στο τέλος της κόκκινης ακτίνας. Έπειτα "
                "πάτησε πάνω στην πηγή, σύρε πιο κοντά στον άξονα και άφησε.",
                "Rest the mouse pointer on the end of the red ray. Then press on the source, drag "
                "nearer to the axis and release."},
        .look = {"Η γωνία είναι 48.5°, μεγαλύτερη από την κρίσιμη γωνία των 41.8°. Το ημίτονο της "
                 "κρίσιμης γωνίας είναι 1 / n, όπου n = 1.50 είναι ο δείκτης διάθλασης. Πιο κοντά "
                 "στον άξονα η γωνία είναι μικρότερη και η ακτίνα βγαίνει.",
                 "The angle is 48.5°, more than the critical angle of 41.8°. The sine of the "
                 "critical angle is 1 / n, where n = 1.50 is the index of refraction. Nearer to "
                 "the axis the angle is smaller and the ray leaves."},
        .question = {"Θα έβγαινε η πρώτη ακτίνα από γυαλί με δείκτη διάθλασης 1.20;",
                     "Would the first ray leave a glass of index 1.20?"},
        .answer = {"Ναι: εκεί η κρίσιμη γωνία είναι 56.4°.",
                   "Yes: there the critical angle is 56.4°."},
        .setup = insideTheGlass(),
        .view = aroundTheGlass,
    },
    {
        .title = {"Φακός με μικρότερο δείκτη διάθλασης από το γύρω του μέσο",
                  "A lens of lower index than its surroundings"},
        .see = {"Μια φυσαλίδα αέρα μέσα σε νερό, με σχετικό δείκτη διάθλασης 0.75: ο αμφίκυρτος "
                "φακός ανοίγει τη δέσμη αντί να τη μαζεύει.",
                "A bubble of air in water, of relative index 0.75: the biconvex lens spreads the "
                "bundle instead of gathering it."},
        .act = {"Άφησε τον δείκτη του ποντικιού ακίνητο πάνω στο F2, αριστερά. Έπειτα άλλαξε τον "
                "δείκτη διάθλασης από 0.75 σε 1.50 και στείλε πάλι τη δέσμη με «// BUNDLE  DESMH» "
                "και γωνία 0.",
                "Rest the mouse pointer on F2, at the left. Then change the index of refraction "
                "from 0.75 to 1.50 and send the bundle again with “// BUNDLE  DESMH” and the "
                "angle 0."},
        .look = {"Η εστιακή απόσταση είναι αρνητική, f = -187.50, και οι ακτίνες φαίνονται να "
                 "έρχονται από το x = -192.50, μπροστά από τον φακό.",
                 "The focal length is negative, f = -187.50, and the rays seem to come from "
                 "x = -192.50, in front of the lens."},
        .question = {"Τι σχήμα πρέπει να έχει μια φυσαλίδα για να μαζεύει το φως;",
                     "What shape must a bubble have to gather light?"},
        .answer = {"Λεπτότερη στη μέση από ό,τι στο χείλος: αμφίκοιλη.",
                   "Thinner in the middle than at the rim: biconcave."},
        .setup = bubble(),
    },
    {
        .title = {"Μέτωπα που περνούν από φακό", "Fronts through a lens"},
        .see = {"Αντί για τις ακτίνες φαίνονται κουκκίδες, μία για κάθε 10 οπτικού δρόμου πάνω σε "
                "κάθε ακτίνα· οπτικός δρόμος είναι μήκος επί δείκτη διάθλασης. Γειτονικές "
                "κουκκίδες με ίσο οπτικό δρόμο σχηματίζουν ένα μέτωπο του κύματος, παντού κάθετο "
                "στις ακτίνες.",
                "In place of the rays there are dots, one for each 10 of optical path on every "
                "ray; optical path is length times index of refraction. Neighbouring dots of equal "
                "optical path form a front of the wave, everywhere square to the rays."},
        .act = {"Διάλεξε «// WAVES  KYMATA»: δύο μέτωπα, ένα κόκκινο και πίσω του ένα μπλε, "
                "περνούν από τον φακό. Με το διάστημα σταματούν και συνεχίζουν· όσο είναι "
                "σταματημένα, η τελεία και το κόμμα τα πηγαίνουν ένα βήμα εμπρός και πίσω· το Home "
                "τα ξεκινά από την αρχή.",
                "Choose “// WAVES  KYMATA”: two fronts, a red one and behind it a blue one, pass "
                "the lens. Space stops them and lets them go on; while they are stopped, full stop "
                "and comma take them one step forward and back; Home starts them anew."},
        .look = {"Στην ακίνητη εικόνα τα μέτωπα των κουκκίδων απέχουν 10.00 στον αέρα και 6.67 "
                 "στο γυαλί, δηλαδή 10 / 1.50· τα δύο μέτωπα που κινούνται απέχουν 100.00 στον "
                 "αέρα. Πάνω στον άξονα το φως διανύει 40 στο γυαλί, που μετρούν για 60: βγαίνει "
                 "20 πίσω από το φως που δεν πέρασε από τον φακό.",
                 "In the still picture the fronts of dots are 10.00 apart in the air and 6.67 in "
                 "the glass, which is 10 / 1.50; the two fronts that move are 100.00 apart in the "
                 "air. On the axis light goes 40 in the glass, which count as 60: it comes out 20 "
                 "behind light that did not pass the lens."},
        .question = {"Γιατί λοιπόν καμπυλώνονται τα μέτωπα;", "Why then do the fronts bend?"},
        .answer = {"Γιατί στη μέση το γυαλί είναι παχύτερο και το φως καθυστερεί περισσότερο από "
                   "ό,τι στο χείλος.",
                   "Because in the middle the glass is thicker and holds the light up longer than "
                   "at the rim."},
        .setup = fronts(),
    },
    {
        .title = {"Ο νόμος του Ιμπν Σαχλ και οι φακοί του", "Ibn Sahl’s law and his lenses"},
        .see = {"Γύρω στο έτος 984 ο Ιμπν Σαχλ βρήκε τον νόμο της διάθλασης, n1·ημ a1 = n2·ημ a2 "
                "για τις γωνίες με την κάθετο, και τον φακό που μαζεύει μια παράλληλη δέσμη σε ένα "
                "σημείο. Η όψη του είναι υπερβολή: το μήκος a πηγαίνει από το κέντρο της, το (0, "
                "0), ως την κορυφή της, το μήκος c ως την εστία της, και η εκκεντρότητα c / a "
                "είναι ίση με τον δείκτη διάθλασης n.",
                "Around the year 984 Ibn Sahl found the law of refraction, n1·sin a1 = n2·sin a2 "
                "for the angles with the normal, and the lens that gathers a parallel bundle at "
                "one point. Its face is a hyperbola: the length a goes from its centre, (0, 0), to "
                "its vertex, the length c to its focus, and the eccentricity c / a equals the "
                "index of refraction n."},
        .act = {"Σύγκρινε με τη σφαιρική εκτροπή του μαθήματος 6. Έπειτα γύρισε με «BACK TO MENU», "
                "άλλαξε τον δείκτη διάθλασης, άνοιξε πάλι τον φακό και στείλε δέσμη με «PARALLILI  "
                "DESMH» και γωνία 0. Άνοιξε και τον αμφίκυρτο.",
                "Compare with the spherical aberration of lesson 6. Then go back with “BACK TO "
                "MENU”, change the index, open the lens again and send a bundle with “PARALLILI  "
                "DESMH” "
                "and the angle 0. Open the biconvex one too."},
        .look = {"Όλες οι ακτίνες, και οι πιο απομακρυσμένες, περνούν από το (-18.00, 0.00), την "
                 "άλλη εστία της υπερβολής: c = n·a = 1.50·12. Ο αμφίκυρτος φακός έχει την ίδια "
                 "όψη και από τις δύο πλευρές: με τον ίδιο δείκτη φέρνει στο ίδιο σημείο το φως "
                 "του (114.00, 0.00).",
                 "All rays, the outermost too, pass through (-18.00, 0.00), the other focus of the "
                 "hyperbola: c = n·a = 1.50·12. The biconvex lens has the same face on both sides: "
                 "with the same index it brings the light of (114.00, 0.00) to the same point."},
        .question = {"Πού συναντιούνται οι ακτίνες της δέσμης για δείκτη διάθλασης 2.00;",
                     "Where do the rays of the bundle meet for an index of 2.00?"},
        .answer = {"Στο (-24.00, 0.00), γιατί c = 2.00·12.",
                   "At (-24.00, 0.00), because c = 2.00·12."},
        .setup = OnIbnSahl{.diafragma = {130.0, 110.0, -110.0}, .light = {0.0}},
        .view = wholeIbnSahl,
    },
    {
        .title = {"Μια πλάγια δέσμη", "An oblique bundle"},
        .see = {"Μια λεπτή παράλληλη δέσμη με κλίση 10° μαζεύεται πάλι, αλλά έξω από τον άξονα.",
                "A narrow parallel bundle inclined by 10° gathers again, but off the axis."},
        .act = {"Στείλε με «// BUNDLE  DESMH» δέσμες με γωνίες 0, 5 και 10 και σημείωσε πού "
                "μαζεύεται η καθεμιά.",
                "Send bundles with the angles 0, 5 and 10 by “// BUNDLE  DESMH” and note where "
                "each of them gathers."},
        .look = {"Η δέσμη των 10° μαζεύεται κοντά στο (201, 34.4), λίγο πριν από το εστιακό "
                 "επίπεδο x = 213.10. Από αυτό περνά σε ύψη από 36.14 ως 37.45, γύρω στο 36.48, "
                 "που είναι f·εφ 10°.",
                 "The bundle of 10° gathers near (201, 34.4), a little before the focal plane "
                 "x = 213.10. It passes that plane at heights from 36.14 to 37.45, about 36.48, "
                 "which is f·tan 10°."},
        .question = {"Ποια μακρινά πράγματα στέλνουν τέτοιες δέσμες;",
                     "Which distant things send such bundles?"},
        .answer =
            {"Κάθε μακρινό σημείο, για παράδειγμα ένα άστρο: η διεύθυνσή του γίνεται θέση στο "
             "εστιακό επίπεδο.",
             "Every distant point, a star for example: its direction becomes a place in the "
             "focal plane."},
        .setup = with(weak({-25.0, 8.0, -18.0}), Bundle{10.0}),
    },
}};

}  // namespace

std::array<Part, 5> parts(const Lesson& lesson) {
  return {{{{"Τι βλέπεις", "What you see"}, lesson.see},
           {{"Τι κάνεις", "What to do"}, lesson.act},
           {{"Τι προσέχεις", "What to look for"}, lesson.look},
           {{"Ερώτηση", "Question"}, lesson.question},
           {{"Απάντηση", "Answer"}, lesson.answer}}};
}

std::span<const Lesson> all() { return lessons; }

}  // namespace lensbench::lessons
