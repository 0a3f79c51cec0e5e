#include "interp/keywords.h"

#include <algorithm>
#include <iterator>

namespace tolvanis {
namespace {

constexpr std::string_view kLineBreak = "\r\n";

// A topic with its qualities.
struct QualifiedTopic {
    std::string_view name, description, best, worst, thought;
};

struct PlainTopic {
    std::string_view name, text;
};

constexpr QualifiedTopic kPlanets[] = {
    {"Sun",
     "Your ego, the inner you, your essence: what stays the same in you whether you are at work, in love "
     "or alone in the kitchen. It shows what you want to be seen for, and where you do not like to be "
     "overruled. In good form it takes the lead and others are glad of it; out of form it gives orders to "
     "people who had not asked.",
     "Rulership", "Dictativeness", "Power"},
    {"Moon",
     "Your emotional responses based on past experiences, the ones that are there before you have had "
     "time to think. It tells what you need in order to feel safe, what you eat when you are sad, and how "
     "you are with your shoes off. Moods belong to it, and the memory for a tone of voice. It takes on "
     "the color of its company, which makes you easy to have around and hard to predict.",
     "Adaptability", "Inconstancy", "Domestic"},
    {"Mercury",
     "Your capacity to collect, sort, classify and communicate whatever comes in through eyes and ears. "
     "It shows how you learn, how you speak and write, and what your hands do while you think. Given "
     "enough to work on, it finds the right word at once. With too little it starts three books and looks "
     "at the clock.",
     "Expression", "Restlessness", "Intellectual"},
    {"Venus",
     "Your capacity to attract and appreciate the things of the world, people among them. It tells what "
     "you find beautiful, whom you like to sit beside, and what you gladly spend money on. With its help "
     "you put guests at ease and bring two sulking friends back to one table. Notice when you have agreed "
     "to something only because the chair was comfortable.",
     "Affection", "Pliancy (bending too easily, taking the easy way out)", "Social"},
    {"Mars",
     "Your desires and aspirations, and what you do to get there. It carries you out of bed, takes the "
     "heavy end, says no, and picks the quarrel. It shows how you begin, how you get angry and how soon "
     "that is over. With a task in hand it is courage; with none it goes looking for somebody to push.",
     "Initiative", "Harshness", "Aggressive"},
    {"Jupiter",
     "The urge for self-improvement through participation in the larger whole. It makes you want to learn "
     "more, see more and share what you have, trusting that there will be enough. It shows what you "
     "believe in and where others find you generous. It likes a full table and a grand promise, and needs "
     "a friend who adds up the bill.",
     "Benevolence (kindness)", "Conceit", "Religious"},
    {"Saturn",
     "Your ability to find your place in society and to carry the weight that comes with it. It stands "
     "for limits, duties, patience and time, and shows what you fear you will not do well enough. What it "
     "gives comes late and stays. Its walls keep the rain out; remember to put in a door.",
     "System and organization", "Selfishness", "Safety"},
    {"Uranus",
     "The unconscious urge to become aware of your true inner individuality, even if the furniture has to "
     "go. It breaks in as the sudden idea, the changed plan, the friend nobody expected you to choose. It "
     "shows where you cannot do as everyone does, and where you invent. In its cheaper form it is "
     "different merely to be looked at.",
     "Originality", "Eccentricity", "Individualistic"},
    {"Neptune",
     "The unconscious urge to dissolve the boundaries of your ego-centeredness and to be part of "
     "something that has no edge. Music, prayer, compassion and daydreams come in by this door, and so "
     "does the fog. It shows what you long for and can hardly put into words. Whatever it has promised "
     "you at night, look at it again in the morning.",
     "Idealism", "Vagueness", "Utopian"},
    {"Pluto",
     "The unconscious urge to transform repressed ego-desire energies into something you can live with "
     "openly. It works below ground and takes its time: what was pushed down comes up again, and it asks "
     "to be dealt with thoroughly. It shows where you go to the bottom of things and cannot stop halfway. "
     "Used on yourself it heals; used on others it turns their rooms upside down.",
     "Spirituality", "Inversion (turning things upside down)", "Universal welfare"},
};

constexpr QualifiedTopic kSigns[] = {
    {"Aries",
     "you need to grow and develop. Here you are a beginner with a beginner's courage: you start things, "
     "run ahead, and learn from the walls you meet. Waiting for permission does not suit you in these "
     "matters. Finish a part of what you begin, and look back at times to see who is still running with "
     "you.",
     "Leadership", "Officiousness (minding other people's business, meddling)", "Egotistical"},
    {"Taurus",
     "you need to learn a sense of values that is your own and was not lent to you by the neighborhood. "
     "You go slowly in these matters, build to last and dislike being hurried. What you gather here gives "
     "you calm until it begins to own you. Give a piece of it away now and then, and see whether you miss "
     "it.",
     "Stability", "Obstinacy", "Possessive"},
    {"Gemini",
     "you need to obtain a variety of experiences, for one of anything is never enough. You ask questions "
     "here, try both doors, and pick up the local words within a week. Changing your mind keeps you young "
     "in this field. When you want to go deeper, stay with one thing until it bores you, and then a week "
     "longer.",
     "Versatility", "Changeableness", "Thought"},
    {"Cancer",
     "you need growth through instruction and training. You learn these things the way one learns to "
     "cook, standing beside somebody and being allowed to help. You guard what is yours here and take "
     "remarks to heart that were meant for the wall. Once you feel safe you hold on through any weather; "
     "say aloud when you are hurt, since nobody can see it from behind.",
     "Tenacity", "Touchiness", "Feeling"},
    {"Leo",
     "you feel a need for personal development. You want to do these things well, in a style of your own, "
     "and in front of somebody whose applause counts. You are warm here and stand by those who trust you. "
     "It grows difficult when another person is to have the last word, so practice giving it away while "
     "it is still small.",
     "Kindness", "Domination", "Will"},
    {"Virgo",
     "you need to separate the wheat from the chaff. You see the loose thread before you see the coat, "
     "and whatever passes through your hands comes out improved. People bring you their tangles with good "
     "reason. Your own work also has to be good enough one day; set the date before you begin.",
     "Analysis", "Criticism", "Analytical"},
    {"Libra",
     "you have been 'out of balance' in previous lifetimes. So the old teaching puts it, and you may take "
     "it as an image: in these matters you keep weighing, comparing and looking for what is fair to both "
     "sides, preferably in company. Others find you pleasant to deal with here. Learn to decide while the "
     "scales are still moving, and to be disliked by somebody for an afternoon.",
     "Affability", "Approbation (always needing approval)", "Equilibrium"},
    {"Scorpio",
     "there is an emotional need for intense involvement and secrecy. These things leave you cold or they "
     "get all of you, down to the cellar. You notice what others hide and tell little of what you have "
     "found. In an emergency nobody is better; on a quiet day be careful not to make one, and trust at "
     "least one person with the key.",
     "Resourcefulness", "Troublesomeness", "Desire"},
    {"Sagittarius",
     "you need to expand your experiences. The room seems small to you here, so you open a window, buy a "
     "ticket, or ask what the whole thing is for. Your good humor carries others along, and they can rely "
     "on you. Take aim before you shoot, and promise a little less than you would like to.",
     "Loyalty", "Sportiveness", "Comprehension"},
    {"Capricorn",
     "you need respect and recognition from others. You take these things seriously, start at the bottom "
     "and climb without much noise. You know how to wait, whom to ask and what a thing costs, and you "
     "seldom offend anybody on the way. Tell them the truth as well, even where a half of it would serve "
     "you better.",
     "Diplomacy", "Deceitfulness", "Utility"},
    {"Aquarius",
     "you need to obtain new knowledge and are not content with the way it has always been done. You "
     "think about these matters on behalf of everyone, and your companions in them are a mixed lot. You "
     "gladly help as long as nobody tells you how. Ask yourself in the middle of a debate whether you "
     "still want to find out, or only to win.",
     "Altruism", "Argumentation", "Knowledge"},
    {"Pisces",
     "you need to allow your intuition to guide you, since here you know things that nobody has told you. "
     "You feel with whoever is in trouble and forget where you end and they begin. Plans go soft in this "
     "field and sometimes turn out well for that very reason. Keep one fixed point, a clock or a sensible "
     "friend, and do your worrying at an hour you have chosen.",
     "Sympathy", "Worry", "Belief"},
};

constexpr PlainTopic kPlainTopics[] = {
    {"Fire",
     "Inspiration, spiritual power, impulse, drive. It acts first and finds the reasons on the way; it "
     "warms the whole room and now and then burns the soup. With much of it you need a goal in front of "
     "you, with little of it the beginning is the hard part. Its signs are Aries, Leo and Sagittarius."},
    {"Earth",
     "Practicality, materialism, values, objective activity. The builder. It trusts what can be weighed, "
     "paid for, repaired and put on a shelf. Whoever has plenty of it finishes things and keeps them; "
     "where it is scarce, good ideas wait for someone to buy the nails. Its signs are Taurus, Virgo and "
     "Capricorn."},
    {"Air",
     "Intellectual and social inclinations, the wish to know, to compare and to talk it over. It takes a "
     "step back to see the whole table and has a name for everything on it. Strong in it, you understand "
     "what you have not yet felt; weak in it, you hardly notice that one could see the matter otherwise. "
     "Its signs are Gemini, Libra and Aquarius."},
    {"Water",
     "Emotions, spiritual and psychic qualities, the sense for what is in the room and has not been said. "
     "It remembers by feeling, takes the shape of its surroundings, and finds its way around the stone. A "
     "chart full of it asks for hours alone, and one that is almost without it learns on Thursday that it "
     "was hurt on Monday. Its signs are Cancer, Scorpio and Pisces."},
    {"Cardinal",
     "Initiates action, forceful activity, the first move of any kind. It opens the season, the meeting "
     "and the argument, and likes to hand the rest to somebody else. Whoever has a great deal of it has "
     "more projects than shelves. Its signs are Aries, Cancer, Libra and Capricorn."},
    {"Fixed",
     "Determined, persistent, stable, stubborn: it carries on with what has been begun. It keeps a "
     "course, a friendship and a grudge for years, and moves when it has decided to and not before. "
     "Nothing large gets finished without it. Its signs are Taurus, Leo, Scorpio and Aquarius."},
    {"Common",
     "Flexible, adaptable, uses lessons from past experience to meet what comes next. It closes one "
     "season and prepares another, mends what the others have bent, and can listen to two people at once. "
     "To say which of the two is right is harder for it. Its signs are Gemini, Virgo, Sagittarius and "
     "Pisces; many books call it mutable."},
    {"1st house",
     "Self-awareness, physical body, personality and the first impression you make. It shows how you "
     "enter a room, a job or a new year, and what people mention when they have to point you out. The "
     "sign on its cusp is your rising sign. A planet in it is noticed before you have said your name."},
    {"2nd house",
     "Money and possessions, values, hidden talents: what you earn by your own effort, what you hold on "
     "to, and what you would not sell at any price. It tells what you believe you are worth, and that "
     "belief often sets the wage. Look here for gifts nobody has yet asked you to use."},
    {"3rd house",
     "Community, relatives, neighbors, short journeys, and all the talk that goes on among them. It is "
     "the house of the school desk, the errand, the letter and the conversation over the fence. It shows "
     "how your mind was first trained, and how you deal with brothers, sisters and whoever lives next "
     "door."},
    {"4th house",
     "The home (the one you make), land, father, and the ground you stand on. It tells where you come "
     "from, what you draw on when nobody is looking, and what kind of door you like to close behind you. "
     "The old books read the end of a matter from it as well, the hour when everyone has gone home. They "
     "do not agree on which parent belongs here."},
    {"5th house",
     "Pursuit of pleasure, personal interests, love affairs, children, and whatever else you bring into "
     "the world. Here you play: on a stage, at a table, with a risk taken for the fun of it. It shows "
     "what you do on an afternoon when you need not do anything. Work that began here usually carries "
     "your signature."},
    {"6th house",
     "Work, service, diet, clothes, physical sickness and the habits that keep you well. It shows how you "
     "go through an ordinary Tuesday, with its tools, lists, colleagues and animals to be fed. In it you "
     "find out which routine holds you up and which one wears you down. Rank and title are another matter "
     "and belong to the tenth."},
    {"7th house",
     "Marriage, partnerships, open enemies, contracts: the other person, face to face. It shows whom you "
     "look for, what you leave to a partner because you do not care to do it yourself, and who "
     "contradicts you across the table. Friend and opponent share this house because both of them make "
     "you answer."},
    {"8th house",
     "Regeneration, death, taxes, inheritances, and everything you own together with somebody else. You "
     "meet in it what cannot be kept as it was: debts, losses, deep attachments, and the strength that "
     "returns afterward. It shows how you share and how you let go. Nobody can read the date of anything "
     "from it."},
    {"9th house",
     "Philosophy, religion, law, higher education, and travel that changes the traveler. It shows what "
     "you still believe after hearing what others believe, and which teacher you would cross a border "
     "for. The mind wants the large map here. It has a weakness for explaining the country before having "
     "been there."},
    {"10th house",
     "Profession, mother, reputation, honors, and the place you take in public. It shows what you are "
     "known for, how you get on with those above you, and what you would like to have built in the end. "
     "Planets in it work in daylight, with witnesses. Some traditions put the father here and the mother "
     "in the fourth."},
    {"11th house",
     "Friends, hopes, goals, ambitions, wishes, and the circles you join because you want to. It shows "
     "with whom you make plans, which cause gets your free evening, and what you expect of the years "
     "ahead. A wish told in the right company has often gone half of its way. You also find here the "
     "people who help without keeping an account."},
    {"12th house",
     "Hidden enemies, self-undoing, limitations, and the quiet room behind the last door. Retreat is its "
     "business: solitude and sleep, the sickbed and the monastery, and the good deed nobody hears about. "
     "The enemy in it is mostly a habit of yours that works while you look away. Go in of your own accord "
     "now and then, and you will be sent there less often."},
    {"General 1",
     "Astrology is the study of the effects of planetary forces upon man."
     "\r\n"
     "That is the old definition, and nobody has been able to measure such a force."
     "\r\n"
     "What you hold in your hand is a map of the sky for one moment and one place, seen from the Earth, "
     "and a language for talking about character."
     "\r\n"
     "It describes inclinations. Two people with nearly the same chart live two different lives, and each "
     "of them decides anew every morning."},
    {"General 2",
     "The Law of Consequence, 'Ye shall reap what ye sow', works in harmony with the planets."
     "\r\n"
     "So the old teachers held, and they meant it as an encouragement."
     "\r\n"
     "A planet gives the theme and the season; whether wheat or thistles stand in the field depends on "
     "what was put there before."
     "\r\n"
     "You may take this as faith or as plain experience. In both cases you can sow something else this "
     "year, at any age."},
    {"General 3",
     "Astrology consists of 3 factors - the houses, the signs, and the planets."
     "\r\n"
     "The planets tell what is at work: will, need, thought, liking, drive and the others."
     "\r\n"
     "The signs tell in which manner it works, and the houses in which field of life you meet it."
     "\r\n"
     "Put the three into one sentence before you add anything else. Venus in Virgo in the 3rd house: you "
     "show that you like someone by looking closely, and you do it in letters and among neighbors."},
    {"Symbolism",
     "Think of the planets as representing the actors in a play."
     "\r\n"
     "The signs are the parts and costumes they have been given; the same actor is bold in one and "
     "careful in another."
     "\r\n"
     "The houses are the scenes in which they come on: the kitchen, the office, the market, the sickroom."
     "\r\n"
     "The aspects are their dialogue, in which some pairs finish each other's lines and some quarrel over "
     "the lamp."
     "\r\n"
     "You are the director, and you may call another rehearsal."},
    {"Aspects",
     "Conjunction    =  Prominence      Semi-sextile =  Growth\r\n"
     "Sextile            =  Opportunity       Square         =  Obstacle\r\n"
     "Trine               =  Luck                 Quincunx     =  Expansion\r\n"
     "Semi-square   =  Friction              Opposition   =  Separation\r\n"
     "Sesquisquare =  Agitation            Parallel        =  Intensity"},
};

std::string WithQualities(std::string opening, const QualifiedTopic& topic) {
    opening.append(topic.description).append(kLineBreak).append(kLineBreak);
    opening.append("Best quality: ").append(topic.best).append(kLineBreak);
    opening.append("Worst quality: ").append(topic.worst).append(kLineBreak);
    return opening.append("Thought series: ").append(topic.thought);
}

std::string SignOpening(std::string_view sign) {
    std::string opening = "In the house where ";
    opening.append(sign).append(" rules the cusp is where:");
    return opening.append(kLineBreak).append(kLineBreak);
}

template <typename Topics>
auto FindTopic(const Topics& topics, std::string_view name) {
    const auto found = std::ranges::find_if(topics, [&](const auto& topic) { return topic.name == name; });
    return found == std::end(topics) ? nullptr : &*found;
}

}  // namespace

std::string KeywordText(std::string_view topic) {
    if (const auto* planet = FindTopic(kPlanets, topic)) return WithQualities({}, *planet);
    if (const auto* sign = FindTopic(kSigns, topic)) return WithQualities(SignOpening(topic), *sign);
    if (const auto* plain = FindTopic(kPlainTopics, topic)) return std::string(plain->text);
    return {};
}

}  // namespace tolvanis
